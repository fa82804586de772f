// Writes the pages of a sheet.
#include "lintavo/drawing/Sheet.h"

#include <utility>

#include "paper/SheetLayout_intern.h"
#include "writers/Writers_intern.h"

namespace lintavo::drawing {

PictureStatus RenderSheet(const std::vector<SheetEntry>& entries, PictureFormat format,
                          Sheet& sheet, const SheetOptions& options, const Style& style) {
  if (entries.empty()) return PictureStatus::kEmpty;
  Sheet made;
  const std::vector<Page> pages = LayOutSheet(entries, options, style, made.entries);
  if (format == PictureFormat::kPdf) {
    const PictureStatus status = WritePdf(pages, made.files.emplace_back());
    if (status != PictureStatus::kOk) return status;
  } else {
    for (const Page& page : pages) {
      const PictureStatus status =
          RenderPage(page, format, options.plan, made.files.emplace_back());
      if (status != PictureStatus::kOk) return status;
    }
  }
  sheet = std::move(made);
  return PictureStatus::kOk;
}

}  // namespace lintavo::drawing
