#include "tarvo/lang/XIni.h"

#include <gtest/gtest.h>

TEST(XIniDevice, SaveToAFullDiskIsNotToldApart)
{
    XIni ini;
    ini.SetStr(L"A", L"k", L"v");
    EXPECT_EQ(ini.SaveAs(L"/dev/full"), 1) << "only a file that cannot be opened is a failure";
}
