// A list of materials by index, as settings files hold them.
#pragma once

#include <vector>

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"
#include "lintavo/settings/CAcMatEntry.h"

class CIniFile;

/// Materials in the order in which they were added, counted from 0. A bad index
/// is no error: it is answered as told at each member. Pointers stay valid
/// until a material is added or the list is emptied.
class LINTAVO_API CAcMatList {
 public:
  CAcMatList() = default;
  CAcMatList(const CAcMatList&) = default;
  CAcMatList(CAcMatList&&) noexcept = default;
  CAcMatList& operator=(const CAcMatList&) = default;
  CAcMatList& operator=(CAcMatList&&) noexcept = default;
  virtual ~CAcMatList();

  /// Reads section prefix + index into an entry; a missing key leaves its field
  /// alone. False, and the entry untouched, when there is no such section.
  bool LoadFromIniFile(CIniFile& document, const CString& prefix, long index,
                       CAcMatEntry& entry) const;
  /// Appends the materials of the sections prefix + 1, 2, 3, …, equal ones too,
  /// up to the first that is missing, at most 9999. True when there was one.
  bool LoadFromIniFile(CIniFile& document, const CString& prefix);

  /// Appends a copy, equal to another or not, and returns its index. Null stands
  /// for a new material. Works the other way round than its name tells, as does
  /// `AddNoCompared`.
  long Add(const CAcMatEntry* entry);
  /// Returns the index of the first material equal to this one; appends a copy
  /// when there is none. Null stands for a new material.
  long AddNoCompared(const CAcMatEntry* entry);
  /// Empties the list.
  void Delete();

  long GetCnt() const { return static_cast<long>(entries_.size()); }
  /// A material, its display part, its texture's file name; null for a bad
  /// index.
  CAcMatEntry* GetEntryPtr(long index);
  const CAcMatEntry* GetEntryPtr(long index) const;
  CAcMatTyp* GetMatPtr(long index);
  const CAcMatTyp* GetMatPtr(long index) const;
  const char* GetTextureName(long index) const;
  /// Ignored for a bad index.
  void SetTextureID(long index, int id);
  /// Scales of the texture; 1.0 for a bad index.
  double dGetXSkale(long index) const;
  double dGetYSkale(long index) const;
  /// The colour of plane drawings as red + 256 green + 65536 blue, the low eight
  /// bits of each; 0 for a bad index.
  unsigned long GetColor2d(long index) const;
  /// The same from section prefix + index of a document, whatever the list
  /// holds; 0 when the section or its colour is missing.
  unsigned long GetColor2d(long index, CIniFile& document, const CString& prefix) const;

 private:
  int nummer_ = -1;  // -1 once the list was emptied; carried along for nobody
  std::vector<CAcMatEntry> entries_;
};
