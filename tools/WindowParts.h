// The components of a window one by one, with their kinds and their ids in pictures.
#pragma once

#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Ids.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace lintavo::tools {

/// What a piece is; lists are in this order.
enum class TeilArt {
  kRahmen,
  kFluegelrahmen,
  kPfosten,  ///< rather upright than level
  kRiegel,
  kZusatzInnen,
  kZusatzAussen,
  kSprosse,
  kLamelle,
  kGlas,
  kPaneel,
  kGriff,
  kBand,
  kBeschlag  ///< fitting that is neither handle nor hinge
};

/// Stands for the window's frame among the indices of sashes.
inline constexpr long kRahmensatz = -1;

/// A component that is there to be seen, and so is counted by the façade.
struct Komponente {
  TeilArt art = TeilArt::kRahmen;
  drawing::ShapeKind kind = drawing::ShapeKind::kRahmenteil;
  long fluegel = kRahmensatz;
  long index = 0;  ///< within its kind, as the façade counts
  const CMBauteil* bauteil = nullptr;

  std::string Id() const { return drawing::IdOf(kind, fluegel, index); }
};

/// The frame of the window, or sash `fluegel`; null where there is none.
const CMFensterSatz* SatzVon(const CFeApi& window, long fluegel);

/// Each holds pointers into its argument, for as long as that stays unchanged.
std::vector<Komponente> Rahmenteile(const CMFensterSatz& satz, long fluegel);
std::vector<Komponente> Einzelteile(const CMFensterSatz& satz, long fluegel);
std::vector<Komponente> Sprossen(const CMFensterSatz& satz, long fluegel);

/// The slats of a sash, laid once for all of them; none where it has no other filling.
std::vector<CMBauteil> LegeLamellen(const CFeApi& window, long fluegel);
std::vector<Komponente> Lamellen(const std::vector<CMBauteil>& lamellen, long fluegel);

/// What a filling that is not slats, and a fitting, is on a list.
TeilArt FuellungArt(const CFeApi& window, long fluegel);
TeilArt BeschlagArt(int typ);

}  // namespace lintavo::tools
