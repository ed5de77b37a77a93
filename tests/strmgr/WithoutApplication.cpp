#include <condtree/platform/StrMgr.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace condtree {
namespace {

// This executable has a main of its own, which makes no application.

TEST(WithoutApplication, TextsAreTheDefaultsAndOperatorsHaveTheirNames)
{
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    EXPECT_EQ(TSS_internal(38, u"TS", u"Search", u"And"), QStringLiteral("And"));
    EXPECT_EQ(TSS_internal(139, u"OpName", u"Search", u"?"), QStringLiteral("Binary Equal To"));
    EXPECT_EQ(TSS_internal(1, nullptr, nullptr, nullptr), QString());
}

TEST(WithoutApplication, AnApplicationThatCameAndWentLeavesEnglish)
{
    {
        int argc = 1;
        char name[] = "test";
        char* argv[] = {name, nullptr};
        const QCoreApplication application(argc, argv);
        EXPECT_EQ(TSS_internal(38, u"TS", u"Search", u"And"), QStringLiteral("And"));
    }
    EXPECT_EQ(TSS_internal(38, u"TS", u"Search", u"And"), QStringLiteral("And"));
}

} // namespace
} // namespace condtree
