// The picture of one sash.
#include "lintavo/sash/CMFensterSatz.h"
#include "lintavo/sash/SashView_intern.h"
#include "lintavo/view/HiddenLines.h"

bool CMFensterSatz::GetFluegelBild2D(std::vector<CMStrecke>& lines,
                                     bool bMitOeffnungssymbol) const {
  const lintavo::Sash sash = lintavo::SashViewOf(*this, 0, *this);
  std::vector<lintavo::VisibleEdge> edges;
  if (!lintavo::FindVisibleEdges(sash, edges)) return false;
  for (const lintavo::VisibleEdge& edge : edges) lines.push_back(lintavo::LineOf(edge));
  if (bMitOeffnungssymbol) lines.insert(lines.end(), sash.symbol.begin(), sash.symbol.end());
  return !lines.empty();
}
