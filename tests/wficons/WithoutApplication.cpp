#include "Module.h"

#include <QCoreApplication>

using namespace condtree;
using test::Module;

namespace {

void expectNothing(const Module& module)
{
    EXPECT_EQ(module.icon(u"PNG_AND"), nullptr);
    EXPECT_EQ(module.image(u"PNG_BLUE_OPS"), nullptr);
    EXPECT_EQ(module.atSize(u"PNG_AND", 16), nullptr);
    EXPECT_EQ(module.icon(nullptr), nullptr);
}

TEST(WithoutApplication, ThereIsNoPicture)
{
    expectNothing(Module());
}

TEST(WithoutApplication, ThereIsNoPictureForOneWithoutScreens)
{
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    expectNothing(Module());
}

} // namespace
