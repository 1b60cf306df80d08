#pragma once

namespace bench {

/// Starts Qt without a display, once for the life of the process: fonts and windows need it.
void NeedApplication();

}  // namespace bench
