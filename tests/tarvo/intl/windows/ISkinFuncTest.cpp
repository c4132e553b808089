#include "tarvo/intl/ISkinFunc.h"

#include <gtest/gtest.h>

namespace
{
class CDarkSkin : public ISkinFunc
{
public:
    int UsesVisualManager(CWnd*, SKIN_WINDOW) override { return 1; }
};
} // namespace

TEST(ISkinFunc, PlainSkinChangesNothing)
{
    ISkinFunc* const plain = ISkinFunc::Instance();
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->UsesVisualManager(nullptr, SKIN_WINDOW::Dialog), 0);
    EXPECT_EQ(plain->GetBackground(nullptr, nullptr, nullptr, WM_CTLCOLORDLG), nullptr);
    plain->OnWindowReady(nullptr, SKIN_WINDOW::PropertySheet);
}

TEST(ISkinFunc, RegisteredSkinAnswersUntilItIsTakenBackOrGoes)
{
    ISkinFunc* const plain = ISkinFunc::Instance();
    {
        CDarkSkin first;
        EXPECT_EQ(ISkinFunc::Register(&first), nullptr);
        EXPECT_EQ(ISkinFunc::Instance(), &first);
        {
            CDarkSkin second;
            EXPECT_EQ(ISkinFunc::Register(&second), &first);
            EXPECT_EQ(ISkinFunc::Instance(), &second);
        }
        EXPECT_EQ(ISkinFunc::Instance(), plain);
        ISkinFunc::Register(&first);
        EXPECT_EQ(ISkinFunc::Register(nullptr), &first);
        EXPECT_EQ(ISkinFunc::Instance(), plain);
        ISkinFunc::Register(&first);
    }
    EXPECT_EQ(ISkinFunc::Instance(), plain);
}
