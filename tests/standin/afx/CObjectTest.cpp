#include <afx.h>

#include <gtest/gtest.h>

#include <memory>

namespace
{
class CShape : public CObject
{
    DECLARE_DYNAMIC(CShape)
};

class CBeam : public CShape
{
    DECLARE_DYNCREATE(CBeam)

    int m_nLength = 7;
};

IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CBeam, CShape)
} // namespace

TEST(CObject, IsOfItsOwnClassAndOfEveryBaseClass)
{
    const CBeam beam;
    EXPECT_TRUE(beam.IsKindOf(RUNTIME_CLASS(CBeam)));
    EXPECT_TRUE(beam.IsKindOf(RUNTIME_CLASS(CShape)));
    EXPECT_TRUE(beam.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(CShape().IsKindOf(RUNTIME_CLASS(CBeam)));
    EXPECT_STREQ(beam.GetRuntimeClass()->m_lpszClassName, "CBeam");
}

TEST(CRuntimeClass, MakesAnObjectByTheNameOfItsClass)
{
    EXPECT_EQ(CRuntimeClass::FromName(L"CBeam"), RUNTIME_CLASS(CBeam));
    const std::unique_ptr<CObject> p(CRuntimeClass::CreateObject("CBeam"));
    ASSERT_NE(p, nullptr);
    CBeam* pBeam = DYNAMIC_DOWNCAST(CBeam, p.get());
    ASSERT_NE(pBeam, nullptr);
    EXPECT_EQ(pBeam->m_nLength, 7);
}

TEST(CRuntimeClass, MakesNothingOfAnUnknownOrDynamicOnlyClass)
{
    EXPECT_EQ(CRuntimeClass::CreateObject("CNobody"), nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject("CShape"), nullptr);
}

TEST(CException, ThrownByTheFrameworkReachesACatchInTheProgram)
{
    const CString s(L"ab");
    EXPECT_EQ(s[2], 0);
    try
    {
        s.GetAt(3);
        FAIL();
    }
    catch (CException* e)
    {
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CInvalidArgException)));
        e->Delete();
    }
}
