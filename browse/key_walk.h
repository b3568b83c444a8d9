// What the views and lists of browse/ share besides the steps along a key file, which frmPage1 declares.
#pragma once

#include "screen/frmPage1.h"
#include "store/key_file.h"

namespace browse {


}  // namespace browse
