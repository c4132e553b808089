#include "TestApp.h"

CTestApp theApp;

namespace
{
class FrameworkEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        ASSERT_TRUE(AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL));
    }
};

[[maybe_unused]] const testing::Environment* const s_pEnvironment =
    testing::AddGlobalTestEnvironment(new FrameworkEnvironment);
} // namespace
