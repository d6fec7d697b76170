#include <gtest/gtest.h>

#include "platform/Platform.h"

namespace logchecker {
namespace {

TEST(WaveDevicesTest, EveryDeviceTellsItsFormatsAndNoOtherDoes) {
  WaveDevices& devices = Os().waveDevices;
  uint32_t formats = 0;
  const int32_t outputs = devices.OutCount();
  ASSERT_GE(outputs, 0);
  for (int32_t i = 0; i < outputs; ++i) EXPECT_EQ(devices.OutFormats(i, &formats), 0) << i;
  EXPECT_NE(devices.OutFormats(outputs, &formats), 0);
  EXPECT_NE(devices.OutFormats(-1, &formats), 0);
  const int32_t inputs = devices.InCount();
  ASSERT_GE(inputs, 0);
  for (int32_t i = 0; i < inputs; ++i) EXPECT_EQ(devices.InFormats(i, &formats), 0) << i;
  EXPECT_NE(devices.InFormats(inputs, &formats), 0);
  EXPECT_NE(devices.InFormats(-1, &formats), 0);
}

}  // namespace
}  // namespace logchecker
