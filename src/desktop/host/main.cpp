#include "desktop/host/Application.h"

int main(int argc, char** argv) {
  return host::Run(argc, argv);
}
