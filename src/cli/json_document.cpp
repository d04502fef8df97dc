#include "cli/json_document.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace orvex::cli {

namespace {

using Document = nlohmann::ordered_json;

}  // namespace

struct JsonPrinting {
  static Document Of(const Json& json) {
    return std::visit([](const auto& value) { return Of(value); }, json.value_);
  }

 private:
  static Document Of(std::monostate /*nothing*/) { return nullptr; }

  static Document Of(const Json::Array& parts) {
    Document array = Document::array();
    for (const Json& part : parts) {
      array.push_back(Of(part));
    }
    return array;
  }

  static Document Of(const Json::Object& members) {
    Document object = Document::object();
    for (const auto& [name, value] : members) {
      object.push_back({name, Of(value)});
    }
    return object;
  }

  template <typename Value>
  static Document Of(const Value& value) {
    return value;
  }
};

bool Json::IsMember() const {
  const auto* parts = std::get_if<Array>(&value_);
  return parts != nullptr && parts->size() == 2 &&
         std::holds_alternative<std::string>(parts->front().value_);
}

Json::Json(const std::vector<std::string>& texts) : value_(Array(texts.begin(), texts.end())) {}

Json::Json(std::initializer_list<Json> parts) {
  if (!std::all_of(parts.begin(), parts.end(), [](const Json& part) { return part.IsMember(); })) {
    value_ = Array(parts);
    return;
  }
  Object members;
  for (const Json& part : parts) {
    const auto& pair = std::get<Array>(part.value_);
    members.emplace_back(pair.front().text(), pair.back());
  }
  value_ = std::move(members);
}

Json& Json::operator[](const std::string& name) {
  if (std::holds_alternative<std::monostate>(value_)) {
    value_ = Object{};
  }
  auto& members = std::get<Object>(value_);
  for (Member& member : members) {
    if (member.first == name) {
      return member.second;
    }
  }
  return members.emplace_back(name, Json()).second;
}

void Json::push_back(Json part) {
  if (std::holds_alternative<std::monostate>(value_)) {
    value_ = Array{};
  }
  std::get<Array>(value_).push_back(std::move(part));
}

std::string Json::Printed() const {
  return JsonPrinting::Of(*this).dump(1, ' ', false, Document::error_handler_t::replace);
}

}  // namespace orvex::cli
