// What cannot be taken back is asked for.
#pragma once

#include "options.h"
#include "status.h"

namespace ctl {

/// Asks on the terminal, unless --yes says that there is no need to.
/// @return done for a yes; refused for anything else; usage where there is no terminal. fail() has said it
[[gnu::format(printf, 2, 3)]] Status confirm(const Invocation &invocation, const char *format, ...);

}  // namespace ctl
