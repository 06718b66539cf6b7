// The string that crosses the boundary between a host and the library.
//
// A CString holds bytes in code page 932 and never a NUL. Its object is one pointer to the bytes,
// which a NUL ends; their length stands in front of them. Everything is in this header, and memory
// comes from malloc and goes to free, so that a host may be built by another compiler or with
// another standard library than the library was. C++17 is enough.
//
// Positions and lengths count bytes. Searches and case changes go by character: the second byte of
// a double-byte character is never taken for a character of its own.
//
// When memory runs out, or a string would pass 2 GB, std::bad_alloc is thrown and the string stays
// as it was; in a program that is built without exceptions the process is aborted. Nothing else
// throws.
#ifndef ORRERYUI_CSTRING_H_
#define ORRERYUI_CSTRING_H_

#include <algorithm>
#include <climits>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <utility>

namespace orreryui {

// Whether a byte can begin a double-byte character.
constexpr bool IsLeadByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return (value >= 0x81 && value <= 0x9F) || (value >= 0xE0 && value <= 0xFC);
}

// Whether a byte can end a double-byte character.
constexpr bool IsTrailByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x40 && value <= 0xFC && value != 0x7F;
}

// The length in bytes, 1 or 2, of the character that begins with `first` and is followed by the
// byte `next` (a NUL at the end of the text). A lead byte takes the next byte with it, assigned or
// not, if that can be a trail byte, so that it never swallows a blank or a line end.
constexpr int CharacterLength(char first, char next) {
  return IsLeadByte(first) && IsTrailByte(next) ? 2 : 1;
}

class CString {
 public:
  CString() noexcept = default;
  // A null pointer stands for the empty string.
  CString(const char* text) { Append(text, text ? std::strlen(text) : 0); }
  // The first `length` bytes of `text`, or those before its NUL if it has one there. A negative
  // length is 0.
  CString(const char* text, int length) {
    if (text && length > 0) Append(text, strnlen(text, static_cast<std::size_t>(length)));
  }
  CString(const CString& other) { Append(other.bytes_, other.Size()); }
  CString(CString&& other) noexcept { Swap(other); }
  CString& operator=(CString other) noexcept {
    Swap(other);
    return *this;
  }
  ~CString() { Empty(); }

  // The bytes, ended by a NUL. The pointer holds until the string changes or goes.
  operator const char*() const noexcept { return bytes_; }
  int GetLength() const noexcept { return Read().length; }
  bool IsEmpty() const noexcept { return GetLength() == 0; }

  // The byte at a position from 0 to GetLength(); the last of these is the NUL.
  char operator[](int position) const noexcept { return bytes_[position]; }

  void Empty() noexcept {
    if (!IsEmpty()) std::free(bytes_ - sizeof(Header));
    bytes_ = Nothing();
  }

  // Parts of the string. A negative position or count is 0; what lies beyond the end is left out.
  CString Mid(int first) const { return Mid(first, GetLength()); }
  CString Mid(int first, int count) const {
    first = std::clamp(first, 0, GetLength());
    return CString(bytes_ + first, std::min(count, GetLength() - first));
  }
  CString Left(int count) const { return Mid(0, count); }
  CString Right(int count) const { return Mid(GetLength() - std::clamp(count, 0, GetLength())); }

  // The byte position of the first hit, or -1. The empty text is found at 0.
  int Find(char character) const noexcept {
    for (int i = 0; i < GetLength(); i += LengthAt(i)) {
      if (bytes_[i] == character && LengthAt(i) == 1) return i;
    }
    return -1;
  }
  int Find(const char* text) const noexcept {
    if (!text || !*text) return 0;
    for (int i = 0; i < GetLength(); i += LengthAt(i)) {
      if (HoldsAt(i, text)) return i;
    }
    return -1;
  }

  // Change the ASCII letters that are characters of their own, and nothing else.
  void MakeLower() noexcept { ShiftLetters('A', 'Z', 'a' - 'A'); }
  void MakeUpper() noexcept { ShiftLetters('a', 'z', 'A' - 'a'); }

  // Replaces the content as printf writes it. The arguments may point into this string. A format
  // that printf rejects gives the empty string.
  [[gnu::format(printf, 2, 3)]] void Format(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    CString result;
    if (length > 0) {
      result.Reserve(static_cast<std::size_t>(length));
      std::vsnprintf(result.bytes_, static_cast<std::size_t>(length) + 1, format, again);
      result.SetLength(std::strlen(result.bytes_));
    }
    va_end(again);
    va_end(arguments);
    Swap(result);
  }

  CString& operator+=(const CString& other) { return Append(other.bytes_, other.Size()); }
  CString& operator+=(const char* text) { return Append(text, text ? std::strlen(text) : 0); }
  // A NUL adds nothing.
  CString& operator+=(char byte) { return Append(&byte, byte ? 1 : 0); }

  friend CString operator+(CString left, const CString& right) {
    left += right;
    return left;
  }
  friend CString operator+(CString left, char right) {
    left += right;
    return left;
  }
  friend CString operator+(char left, const CString& right) { return CString(&left, 1) += right; }

  friend bool operator==(const CString& left, const CString& right) noexcept {
    return left.Size() == right.Size() && std::memcmp(left, right, left.Size()) == 0;
  }
  friend bool operator==(const CString& left, const char* right) noexcept {
    return std::strcmp(left, right ? right : "") == 0;
  }
  friend bool operator==(const char* left, const CString& right) noexcept { return right == left; }
  friend bool operator!=(const CString& left, const CString& right) noexcept {
    return !(left == right);
  }
  friend bool operator!=(const CString& left, const char* right) noexcept {
    return !(left == right);
  }
  friend bool operator!=(const char* left, const CString& right) noexcept {
    return !(right == left);
  }

  // Strings have no order; without this, the two pointers would be compared.
  friend bool operator<(const CString& left, const CString& right) = delete;

 private:
  // Stands in front of the bytes. A string of length 0 owns no memory: it points to a NUL of its
  // module's own, with a header of zeros in front.
  struct Header {
    int length;
    int capacity;  // how many bytes there is room for, the NUL not counted
  };

  // Hidden, because a symbol that modules share would keep them from being unloaded.
  [[gnu::visibility("hidden")]] static char* Nothing() noexcept {
    static constexpr char kNothing[sizeof(Header) + 1] = {};
    return const_cast<char*>(kNothing) + sizeof(Header);
  }

  Header Read() const noexcept {
    Header header;
    std::memcpy(&header, bytes_ - sizeof header, sizeof header);
    return header;
  }
  void Write(Header header) noexcept {
    std::memcpy(bytes_ - sizeof header, &header, sizeof header);
  }

  std::size_t Size() const noexcept { return static_cast<std::size_t>(GetLength()); }
  void Swap(CString& other) noexcept { std::swap(bytes_, other.bytes_); }

  // Nothing is read behind the NUL.
  int LengthAt(int position) const noexcept {
    return bytes_[position] ? CharacterLength(bytes_[position], bytes_[position + 1]) : 1;
  }

  // Whether the characters from `position` on are those of `text`.
  bool HoldsAt(int position, const char* text) const noexcept {
    while (*text) {
      const int length = LengthAt(position);
      if (length != CharacterLength(text[0], text[1])) return false;
      if (std::memcmp(bytes_ + position, text, static_cast<std::size_t>(length)) != 0) return false;
      position += length;
      text += length;
    }
    return true;
  }

  void ShiftLetters(char first, char last, int distance) noexcept {
    for (int i = 0; i < GetLength(); i += LengthAt(i)) {
      if (LengthAt(i) == 2 || bytes_[i] < first || bytes_[i] > last) continue;
      bytes_[i] = static_cast<char>(bytes_[i] + distance);
    }
  }

  // `text` may lie in this string.
  CString& Append(const char* text, std::size_t length) {
    if (length == 0) return *this;
    if (length > INT_MAX) TooLong();
    const std::size_t size = Size();
    const std::size_t total = size + length;
    if (total > static_cast<std::size_t>(Read().capacity)) {
      const bool is_own = !std::less<>()(text, bytes_) && !std::less<>()(bytes_ + size, text);
      const std::ptrdiff_t place = is_own ? text - bytes_ : 0;
      Reserve(IsEmpty() ? length : total + total / 2);
      if (is_own) text = bytes_ + place;
    }
    std::memcpy(bytes_ + size, text, length);
    SetLength(total);
    return *this;
  }

  [[noreturn]] static void TooLong() {
#if defined(__cpp_exceptions)
    throw std::bad_alloc();
#else
    std::abort();
#endif
  }

  // Gives the string room for `capacity` bytes, more than it holds. SetLength must follow. A long
  // string grows where it lies, if the system can do that: there are no two copies of it.
  void Reserve(std::size_t capacity) {
    const int length = GetLength();
    void* const old = IsEmpty() ? nullptr : bytes_ - sizeof(Header);
    void* const block =
        capacity < INT_MAX ? std::realloc(old, sizeof(Header) + capacity + 1) : nullptr;
    if (!block) TooLong();
    bytes_ = static_cast<char*>(block) + sizeof(Header);
    Write({length, static_cast<int>(capacity)});
  }

  // A block that was reserved in vain is given back.
  void SetLength(std::size_t length) noexcept {
    bytes_[length] = '\0';
    Write({static_cast<int>(length), Read().capacity});
    if (length > 0) return;
    std::free(bytes_ - sizeof(Header));
    bytes_ = Nothing();
  }

  char* bytes_ = Nothing();
};

static_assert(sizeof(CString) == sizeof(void*), "hosts rely on it");

}  // namespace orreryui

#endif  // ORRERYUI_CSTRING_H_
