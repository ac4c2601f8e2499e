/*
 * A strict syntax check of one JSON value, for the tests of the record JSON and sibdump.
 */
#ifndef UMTS_TESTS_JSON_CHECK_H
#define UMTS_TESTS_JSON_CHECK_H

#include <cctype>
#include <cstring>
#include <string>

namespace json_check {

struct Parser {
  const std::string& s;
  size_t i = 0;

  bool lit(const char* word) {
    const size_t n = std::strlen(word);
    if (s.compare(i, n, word) != 0) return false;
    i += n;
    return true;
  }
  bool string() {
    if (i >= s.size() || s[i] != '"') return false;
    for (i++; i < s.size(); i++) {
      if (s[i] == '\\') i++;
      else if (s[i] == '"') return ++i, true;
      else if (static_cast<unsigned char>(s[i]) < 0x20) return false;
    }
    return false;
  }
  bool number() {
    const size_t start = i;
    if (i < s.size() && s[i] == '-') i++;
    const size_t digits = i;
    while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) i++;
    if (i == digits || (s[digits] == '0' && i - digits > 1)) return false;
    return i > start;
  }
  bool value() {
    if (i >= s.size()) return false;
    switch (s[i]) {
      case '{': {
        i++;
        if (i < s.size() && s[i] == '}') return ++i, true;
        for (;;) {
          if (!string() || i >= s.size() || s[i++] != ':' || !value() || i >= s.size()) return false;
          if (s[i] == '}') return ++i, true;
          if (s[i++] != ',') return false;
        }
      }
      case '[': {
        i++;
        if (i < s.size() && s[i] == ']') return ++i, true;
        for (;;) {
          if (!value() || i >= s.size()) return false;
          if (s[i] == ']') return ++i, true;
          if (s[i++] != ',') return false;
        }
      }
      case '"':
        return string();
      case 't':
        return lit("true");
      case 'f':
        return lit("false");
      case 'n':
        return lit("null");
      default:
        return number();
    }
  }
};

/* True when `text` is exactly one JSON value, without blanks. */
inline bool valid(const std::string& text) {
  Parser p{text};
  return p.value() && p.i == text.size();
}

}  // namespace json_check

#endif /* UMTS_TESTS_JSON_CHECK_H */
