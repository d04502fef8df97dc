#include "cli/visible_output.h"

#include "core/unicode_text.h"

namespace orvex::cli {

VisibleBuffer::VisibleBuffer(std::ostream& stream) : stream_(stream), target_(stream.rdbuf(this)) {}

VisibleBuffer::~VisibleBuffer() {
  PassOn();
  stream_.rdbuf(target_);
}

bool VisibleBuffer::PassOn() {
  const std::string shown = core::VisibleText(line_);
  line_.clear();
  const auto size = static_cast<std::streamsize>(shown.size());
  return target_->sputn(shown.data(), size) == size;
}

void VisibleBuffer::PutRaw(const std::string& bytes) {
  const auto size = static_cast<std::streamsize>(bytes.size());
  if (!PassOn() || target_->sputn(bytes.data(), size) != size) {
    stream_.setstate(std::ios::badbit);
  }
}

VisibleBuffer::int_type VisibleBuffer::overflow(int_type byte) {
  if (traits_type::eq_int_type(byte, traits_type::eof())) {
    return traits_type::not_eof(byte);
  }
  const char c = traits_type::to_char_type(byte);
  return xsputn(&c, 1) == 1 ? byte : traits_type::eof();
}

std::streamsize VisibleBuffer::xsputn(const char* bytes, std::streamsize count) {
  line_.append(bytes, static_cast<std::size_t>(count));
  // A character may come in pieces, but never across a line break.
  return line_.find('\n') == std::string::npos || PassOn() ? count : 0;
}

int VisibleBuffer::sync() { return PassOn() && target_->pubsync() == 0 ? 0 : -1; }

void PutData(const std::string& bytes) {
  if (auto* visible = dynamic_cast<VisibleBuffer*>(std::cout.rdbuf())) {
    visible->PutRaw(bytes);
  } else {
    std::cout << bytes;
  }
}

}  // namespace orvex::cli
