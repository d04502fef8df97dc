#include "ui/base/export_table.h"

#include "core/own_files.h"
#include "practice/export_list.h"
#include "ui/base/file_dialogs.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"

namespace orvex::ui {

void ExportTable(Workplace& place, QWidget& parent, const core::Table& table,
                 const std::string& title) {
  const auto file = place.Files.ChooseFileToWrite(&parent, "Export to spreadsheet", title + ".xlsx",
                                                  "Spreadsheets (*.xlsx)");
  if (!file) {
    return;
  }
  try {
    core::CheckFileToWrite(place.Session, *file);
  } catch (const std::exception& error) {
    Complain(place.Session.Shown, error.what());
    return;
  }
  if (const auto refused = practice::ExportList(table, *file, title)) {
    place.Session.Shown.ShowMessage(refused->Text, core::MessageButtons::Ok, refused->Icon);
    return;
  }
  place.Files.OpenWithDesktop(*file);
}

void OfferExport(Workplace& place, TableView& table) {
  table.SetExport([&place, &table](const core::Table& shown) {
    ExportTable(place, table, shown, Typed(table.accessibleName()));
  });
}

}  // namespace orvex::ui
