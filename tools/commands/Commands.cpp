// All commands of `lintavo`.
#include "commands/Commands.h"

namespace lintavo::tools {

std::span<const AddCommand> AllCommands() {
  // clang-format off
  static constexpr AddCommand kCommands[] = {
      AddShow,
      AddCheck,
      AddDraw,
      AddSheet,
      AddFit,
      AddSet,
      AddPosition,
      AddForm,
      AddParts,
      AddExport,
      AddConvert,
  };
  // clang-format on
  return kCommands;
}

}  // namespace lintavo::tools
