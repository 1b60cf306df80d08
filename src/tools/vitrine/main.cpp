#include <cstdio>
#include <cstdlib>

#include "tools/vitrine/Showcase.h"

int main(int argc, char** argv) {
  vitrine::Options options;
  try {
    options = vitrine::Options::Read({argv + 1, argv + argc});
  } catch (const host::BadOption& bad) {
    std::fprintf(stderr, "%s\n\n%s", bad.what(), vitrine::Options::Help());
    return 2;
  }
  if (options.host.help) {
    std::fputs(vitrine::Options::Help(), stdout);
    return 0;
  }
  if (!host::HasDisplay()) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  return host::RunWithScreen(argv, [&]() -> std::unique_ptr<host::Application> {
    if (options.IsScripted()) return std::make_unique<vitrine::Showcase>(options);
    return std::make_unique<vitrine::Watched>(options);
  });
}
