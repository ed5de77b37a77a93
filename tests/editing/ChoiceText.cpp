#include <condtree/editing/ChoiceText.h>

#include "ChoiceTables.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace condtree {
namespace {

using test::kAsked;
using test::kEnglish;

} // namespace

TEST(ChoiceTextAsShown, IsAskedForLikeAnOperatorFrom100To999)
{
    for (const LONG code : {100, 101, 109, 136, 139, 142, 160, 500, 999})
        EXPECT_EQ(choiceTextAsShown(code, QStringLiteral("Given"), kAsked),
                  QStringLiteral("OpName Search %1 (Given)").arg(code));
}

TEST(ChoiceTextAsShown, IsTheGivenTextForEveryOtherCode)
{
    for (const LONG code : {-1, 0, 1, 10, 99, 1000, 1106, 2001, 3000})
        EXPECT_EQ(choiceTextAsShown(code, QStringLiteral("Given"), kAsked), QStringLiteral("Given"))
            << code;
}

TEST(ChoiceTextAsShown, TakesTheGivenTextWhereTheStringLibraryHasNone)
{
    EXPECT_EQ(choiceTextAsShown(142, QStringLiteral("Flow.\u00C4nderung"), kEnglish),
              QStringLiteral("Flow.\u00C4nderung"));
    EXPECT_EQ(choiceTextAsShown(142, QString(), kEnglish), QString());
}

TEST(ChoiceTextAsRead, IsTheWholeTextUpTo256Units)
{
    for (const int length : {0, 1, 255, 256}) {
        const QString text(length, QLatin1Char('x'));
        EXPECT_EQ(choiceTextAsRead(text), text);
    }
}

TEST(ChoiceTextAsRead, IsCutBehind256Units)
{
    for (const int length : {257, 1001, 100000})
        EXPECT_EQ(choiceTextAsRead(QString(256, QLatin1Char('x'))
                                   + QString(length - 256, QLatin1Char('y'))),
                  QString(256, QLatin1Char('x')));
}

TEST(ChoiceTextAsRead, IsCutInTheMiddleOfAPairToo)
{
    const QString start(255, QLatin1Char('x'));
    const QString read = choiceTextAsRead(start + QString::fromUcs4(U"\U0001F600"));
    ASSERT_EQ(read.size(), 256);
    EXPECT_EQ(read.left(255), start);
    EXPECT_TRUE(read.back().isHighSurrogate());
}

} // namespace condtree
