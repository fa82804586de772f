// What the opaque handles of the C interface hold, and the few steps that every
// function takes to reach the façade and to hand out its results.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "lintavo/api/CFeApi.h"
#include "lintavo/api/Schutz_intern.h"
#include "lintavo/capi/records_c.h"
#include "lintavo/capi/window_c.h"

struct lintavo_window {
  CFeApi api;
};

struct lintavo_polygon {
  CFeApiPolygon record;
};

struct lintavo_segments {
  CFeApiStrecken record;
};

struct lintavo_bytes {
  std::string content;
};

namespace lintavo::capi {

/// The value that an output pointer points to, or a stand-in where the host
/// does not want it.
template <class Value>
class Output {
 public:
  explicit Output(Value* target) : target_(target) {}
  operator Value&() { return target_ ? *target_ : unwanted_; }

 private:
  Value* target_;
  Value unwanted_{};
};

/// The record inside a handle, or a stand-in for a null handle.
template <class Handle>
class Record {
 public:
  explicit Record(Handle* handle) : used_(handle ? handle : &own_) {}
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;
  operator decltype(Handle::record) & () { return used_->record; }

 private:
  Handle own_;
  Handle* used_;
};

/// A new handle, or null when there is no memory.
template <class Handle, class... Arguments>
Handle* Create(const Arguments&... arguments) {
  return Geschuetzt<Handle*>(nullptr, [&] { return new Handle{arguments...}; });
}

/// Copies what fits and terminates it; returns the text's whole length.
inline std::size_t HandOut(std::string_view text, char* buffer, std::size_t size) {
  if (buffer == nullptr || size == 0) return text.size();
  const std::size_t count = std::min(text.size(), size - 1);
  text.copy(buffer, count);
  buffer[count] = '\0';
  return text.size();
}

/// Hands out a text that the façade copies into its array of 256 bytes.
/// `query` fills the array and returns the number of bytes.
template <class Query>
std::size_t HandOutText(char* buffer, std::size_t size, Query query) {
  char text[256] = {};
  const long length = query(text);
  return HandOut(std::string_view(text, static_cast<std::size_t>(std::max(length, 0L))), buffer,
                 size);
}

}  // namespace lintavo::capi
