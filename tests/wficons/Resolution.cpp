// Run several times, with settings of the screen in the environment and the size that they make.
#include "Module.h"

#include "support/WarningGuard.h"

#include <QtGlobal>

using namespace condtree;
using test::Module;
using test::taken;

namespace {

TEST(Resolution, PicturesHaveThePixelsOfTheScreen)
{
    const int height = qEnvironmentVariableIntValue("CONDTREE_EXPECTED_HEIGHT");
    ASSERT_GT(height, 0);
    const Module module;
    EXPECT_EQ(taken(module.icon(u"PNG_AND")), taken(module.atSize(u"PNG_AND", height)));
    EXPECT_EQ(taken(module.image(u"PNG_GREEN_OPS")),
              taken(module.atSize(u"PNG_GREEN_OPS", height)));
}

} // namespace
