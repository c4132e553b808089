#include "platform/codepage.h"

#include <gtest/gtest.h>

TEST(Codepage, EncodedBoundCoversThreeBytesForEachUnit) { EXPECT_EQ(platform::codepage::encoded_bound(7), 21u); }
