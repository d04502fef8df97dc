// The list of a horoscope's pages in their groups. Captions cannot be chosen; the rows share the
// height that is there.
#pragma once

#include <QListWidget>

namespace orvex::ui {

class PageList final : public QListWidget {
  Q_OBJECT

 public:
  PageList();

  void AddCaption(const QString& caption);

  // A page with the place by which it is told.
  void AddPage(const QString& title, std::size_t place);

  // The place of a row's page; nothing for a caption.
  std::optional<std::size_t> PlaceOf(int row) const;

  // A count behind the title of a page, "" for none.
  void SetCount(std::size_t place, const QString& count);

  // The width that shows every title, in pixels.
  int WidthOfTitles() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace orvex::ui
