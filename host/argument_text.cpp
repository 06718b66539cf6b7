#include "host/argument_text.h"

#include <charconv>

#include <orreryui/utf8.h>

namespace orreryui::host {
namespace {

void Refuse(std::size_t place, const std::string& reason, std::string& error) {
  if (error.empty()) error = "argument " + std::to_string(place) + " " + reason;
}

}  // namespace

int ReadInteger(const std::string& text, std::size_t place, std::string& error) {
  int value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, code] = std::from_chars(text.data(), end, value);
  if (code == std::errc() && stop == end) return value;
  Refuse(place, "isn't an integer of 32 bits: " + text, error);
  return 0;
}

CString ReadText(const std::string& text, std::size_t place, std::string& error) {
  const Encoded encoded = FromUtf8(text);
  if (encoded.refused.empty()) return CString(encoded.bytes.c_str());
  Refuse(place, "has characters that code page 932 lacks: " + encoded.refused, error);
  return CString();
}

std::string TextOf(int result) { return std::to_string(result); }

std::string TextOf(const CString& result) { return ToUtf8(result.operator const char*()); }

}  // namespace orreryui::host
