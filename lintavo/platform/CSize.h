// A width and a height in whole units, as hosts hand over picture sizes.
#pragma once

/// Size of a picture, in pixels. A value without any rule of its own: negative
/// sizes are kept as given.
struct CSize {
  int cx = 0;
  int cy = 0;

  bool operator==(const CSize&) const = default;
};
