// The options of the command "export-csv" that say how the file is written: the choices of the
// export sheet as words.

#pragma once

#include "cli/Arguments.h"

namespace tomely {

OptionGroup csvOptions();

} // namespace tomely
