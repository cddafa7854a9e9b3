// Tests of the screens' pieces: the program's own application object, without a window on a display.
#include <gtest/gtest.h>

#include "shell/Aplicacio.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Aplicacio aplicacio(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
