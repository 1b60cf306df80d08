#pragma once

namespace host {

/// The host application from its command line to its exit status: 0 done, 1 failed, 2 not
/// understood.
int Run(int argc, char** argv);

}  // namespace host
