// All commands of `lintavo`.
#include "commands/Commands.h"

namespace lintavo::tools {

std::span<const AddCommand> AllCommands() {
  static constexpr AddCommand kCommands[] = {
      AddShow,      //
      AddFit,       //
      AddDraw,      //
      AddPosition,  //
      AddForm,      //
      AddParts,     //
      AddExport,    //
  };
  return kCommands;
}

}  // namespace lintavo::tools
