// SPDX-License-Identifier: Apache-2.0
// A process that locks itself in as for decoding an image, with the argument "on", and ends.
#include <cstring>

#include "Tools/zarvodraw/Confinement.h"

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "on") == 0) {
    zarvo::LeaveRoot();
    zarvo::Confine(zarvo::Task::kImage);
  }
}
