#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  int onlyName = 1;
  const QApplication application(onlyName, argv);
  return RUN_ALL_TESTS();
}
