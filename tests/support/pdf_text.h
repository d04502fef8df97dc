// The text of PDF files, read back by another program.
#pragma once

#include <gtest/gtest.h>
#include <stdio.h>

#include <QString>
#include <array>
#include <filesystem>
#include <string>

namespace orvex::test {

// What a program writes to its standard output.
inline std::string OutputOf(const std::string& call) {
  std::string text;
  FILE* pipe = ::popen(call.c_str(), "r");
  std::array<char, 4096> piece{};
  for (std::size_t count = 0; (count = ::fread(piece.data(), 1, piece.size(), pipe)) > 0;) {
    text.append(piece.data(), count);
  }
  EXPECT_EQ(::pclose(pipe), 0) << call;
  return text;
}

// Without blanks and control characters, so that it does not matter where lines end.
inline QString Squeezed(const QString& text) {
  QString squeezed;
  for (const QChar c : text) {
    if (!c.isSpace() && c.category() != QChar::Other_Control) {
      squeezed += c;
    }
  }
  return squeezed;
}

inline QString Squeezed(const std::string& text) { return Squeezed(QString::fromStdString(text)); }
inline QString Squeezed(const char* text) { return Squeezed(QString::fromUtf8(text)); }

// All text of a file in the order in which it was set, squeezed.
inline QString TextOfPdf(const std::filesystem::path& pdf) {
  return Squeezed(OutputOf("pdftotext -raw '" + pdf.string() + "' -"));
}

}  // namespace orvex::test
