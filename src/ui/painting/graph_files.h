// Graphs on paper and in files, always light.
#pragma once

#include <QSize>
#include <filesystem>

#include "ui/painting/graph_style.h"
#include "ui/painting/page_document.h"

namespace orvex::ui {

// A text in which what no XML document may hold has become blank.
QString WithoutControls(const std::string& text);

// What a painting looks like as an SVG document of that size. The title is escaped.
std::string SvgText(const QSize& size, const std::string& title,
                    const std::function<void(QPainter&)>& paint);

// Writes a graph as SVG. The file is private and appears whole or not at all; std::runtime_error
// where it can't be written. Needs a QGuiApplication.
void WriteGraphSvg(const GraphPainting& graph, const std::string& title,
                   const std::filesystem::path& file);

// A graph as wide as a page, so high that it stands under a title on a page that lies across. The
// graph must outlive the document.
PageFigure GraphFigure(const GraphPainting& graph);

// A file name that a title gives on every system: without what separates folders or is forbidden.
std::string FileNameOf(const std::string& title);

}  // namespace orvex::ui
