// A JSON document as the commands write it down. The library that prints it is read in one source
// file alone: it costs a compiler more than a command does.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace orvex::cli {

class Json {
 public:
  using Member = std::pair<std::string, Json>;

  Json() = default;
  Json(std::nullptr_t) {}
  Json(const char* text) : value_(std::string(text)) {}
  Json(std::string text) : value_(std::move(text)) {}
  Json(bool truth) : value_(truth) {}
  Json(double number) : value_(number) {}
  template <typename Whole, typename = std::enable_if_t<std::is_integral_v<Whole>>>
  Json(Whole number) : value_(static_cast<std::int64_t>(number)) {}
  Json(const std::vector<std::string>& texts);
  // Pairs that each begin with a text are the members of an object, anything else an array.
  Json(std::initializer_list<Json> parts);

  // Named as those of a container.
  // NOLINTBEGIN(readability-identifier-naming)
  static Json array() { return Json(Array{}); }
  static Json object() { return Json(Object{}); }

  // The member of an object, made where it is missing. Nothing becomes an object.
  Json& operator[](const std::string& name);
  // Nothing becomes an array.
  void push_back(Json part);
  Json& back() { return std::get<Array>(value_).back(); }

  const std::vector<Member>& items() const { return std::get<Object>(value_); }
  const std::string& text() const { return std::get<std::string>(value_); }
  // NOLINTEND(readability-identifier-naming)

  // UTF-8, one blank a level; bytes that are no UTF-8 become replacement characters.
  std::string Printed() const;

 private:
  using Array = std::vector<Json>;
  using Object = std::vector<Member>;
  friend struct JsonPrinting;

  explicit Json(Array parts) : value_(std::move(parts)) {}
  explicit Json(Object members) : value_(std::move(members)) {}
  bool IsMember() const;

  std::variant<std::monostate, bool, std::int64_t, double, std::string, Array, Object> value_;
};

}  // namespace orvex::cli
