// Colours and pens: the usual ones, and what a style makes of them.
#include <cstddef>

#include "paper/Look_intern.h"

namespace lintavo::drawing {
namespace {

// Widths of pens in millimetres.
constexpr double kUmrissPen = 0.5;
constexpr double kRahmenPen = 0.25;
constexpr double kSprossenPen = 0.18;
constexpr double kFuellungPen = 0.13;
constexpr double kSymbolPen = 0.25;
constexpr double kBeschlagPen = 0.3;
constexpr double kMaszPen = 0.18;
constexpr double kHilfslinienPen = 0.13;
constexpr double kHatchingPen = 0.13;

constexpr Colour Rgb(int red, int green, int blue) {
  return {red / 255.0, green / 255.0, blue / 255.0};
}

constexpr Colour kInk = Rgb(0x4a, 0x44, 0x3c);
constexpr Colour kSymbolInk = Rgb(0x2f, 0x5d, 0x8a);
constexpr Colour kFittingInk = Rgb(0x26, 0x22, 0x1e);
constexpr Colour kFittingFill = Rgb(0xd6, 0xd8, 0xd8);
constexpr Colour kMeasureInk = Rgb(0x33, 0x33, 0x33);
constexpr Colour kHatchingInk = Rgb(0x9a, 0x94, 0x88);

// The frame is the darkest wood, the sashes are lighter: what opens stands out.
Colour UsualFill(ShapeKind kind) {
  switch (kind) {
    case ShapeKind::kRahmenteil:
      return Rgb(0xcb, 0xb5, 0x92);
    case ShapeKind::kEinzelteil:
      return Rgb(0xc1, 0xaa, 0x86);
    case ShapeKind::kZusatzteil:
      return Rgb(0xb4, 0xb3, 0xac);
    case ShapeKind::kGlas:
      return Rgb(0xdb, 0xea, 0xf3);
    case ShapeKind::kPaneel:
      return Rgb(0xe4, 0xe1, 0xda);
    case ShapeKind::kLamellen:
      return Rgb(0x8d, 0x92, 0x8f);
    case ShapeKind::kLamelle:
      return Rgb(0xd8, 0xdb, 0xd6);
    case ShapeKind::kFluegelteil:
      return Rgb(0xe9, 0xdc, 0xc4);
    case ShapeKind::kFluegelEinzelteil:
      return Rgb(0xde, 0xcf, 0xb4);
    case ShapeKind::kSprosse:
      return Rgb(0xf1, 0xe8, 0xd6);
    case ShapeKind::kMaszPfeil:
      return kMeasureInk;
  }
  return kInk;
}

double WidthOf(ShapeKind kind, const Pens& pens) {
  switch (kind) {
    case ShapeKind::kRahmenteil:
    case ShapeKind::kEinzelteil:
    case ShapeKind::kZusatzteil:
    case ShapeKind::kFluegelteil:
    case ShapeKind::kFluegelEinzelteil:
      return kRahmenPen * pens.rahmen;
    case ShapeKind::kGlas:
    case ShapeKind::kPaneel:
    case ShapeKind::kLamellen:
    case ShapeKind::kLamelle:
      return kFuellungPen * pens.rahmen;
    case ShapeKind::kSprosse:
      return kSprossenPen * pens.sprossen;
    case ShapeKind::kMaszPfeil:
      return 0.0;
  }
  return 0.0;
}

Colour Choose(const Palette& palette, long number, const Colour& usual) {
  if (number < 1 || static_cast<std::size_t>(number) > palette.size()) return usual;
  return palette[static_cast<std::size_t>(number - 1)];
}

}  // namespace

Colour FillOf(const Shape& shape, const Style& style) {
  const bool masz = shape.kind == ShapeKind::kMaszPfeil;
  return Choose(masz ? style.masze : style.bauteile, shape.attribut, UsualFill(shape.kind));
}

Pen PenOf(const Shape& shape, const Style& style) {
  return {WidthOf(shape.kind, style.pens), kInk, false};
}

Pen PenOf(const Line& line, const Style& style) {
  const Colour masz = Choose(style.masze, line.attribut, kMeasureInk);
  switch (line.kind) {
    case LineKind::kAnsicht:
      return {WidthOf(line.teil, style.pens), kInk, line.dashed};
    case LineKind::kOeffnungsSymbol:
      return {kSymbolPen * style.pens.symbole, Choose(style.symbole, line.attribut, kSymbolInk),
              line.dashed};
    case LineKind::kBeschlag:
      return {kBeschlagPen * style.pens.rahmen, kFittingInk, line.dashed};
    case LineKind::kMaszLinie:
      return {kMaszPen * style.pens.masze, masz, line.dashed};
    case LineKind::kHilfsLinie:
      return {kHilfslinienPen * style.pens.masze, masz, line.dashed};
  }
  return {};
}

Colour FittingFill() {
  return kFittingFill;
}

Pen UmrissPen(const Style& style) {
  return {kUmrissPen * style.pens.rahmen, kInk, false};
}

Pen HatchingPen(const Style& style) {
  return {kHatchingPen * style.pens.rahmen, kHatchingInk, false};
}

Colour ColourOf(const Text& text, const Style& style) {
  return Choose(style.masze, text.attribut, kMeasureInk);
}

Colour CaptionColour() {
  return kMeasureInk;
}

Pen RulePen() {
  return {kMaszPen, kMeasureInk, false};
}

}  // namespace lintavo::drawing
