#include "ui/painting/page_style.h"

namespace orvex::ui {

RoleStyle StyleOf(PageRole role) {
  switch (role) {
    case PageRole::Title:
      return {22, false, true, false, ink::kAccent, 10};
    case PageRole::Section:
      return {12.5, true, false, false, ink::kAccent, 20};
    case PageRole::Part:
      return {9.5, true, false, false, ink::kMuted, 12};
    case PageRole::Lead:
      return {10, false, false, false, ink::kMuted, 2};
    case PageRole::Body:
      return {9, false, false, false, ink::kText, 6};
    case PageRole::Fine:
      return {7.5, false, false, false, ink::kMuted, 4};
  }
  return {9, false, false, false, ink::kText, 6};
}

PageFont FontOf(PageRole role, PageScale scale) {
  const RoleStyle style = StyleOf(role);
  return {scale.Size(style.Points), style.Bold, style.Serif, style.Italic};
}

}  // namespace orvex::ui
