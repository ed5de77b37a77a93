#include <condtree/editing/ChoiceModel.h>

#include <condtree/presentation/ImgLst.h>

#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QColor>
#include <QIcon>
#include <QImage>

using namespace condtree;

namespace {

ChoiceEntry choice(LONG code, const char* text, int image = -1)
{
    return {code, QString::fromLatin1(text), image};
}

class ChoiceModelTest : public testing::Test {
protected:
    /// The codes of the model's rows.
    [[nodiscard]] std::vector<LONG> codes() const
    {
        std::vector<LONG> found;
        for (int i = 0; i < model.rowCount(); ++i) {
            found.push_back(model.index(i, 0).data(Qt::UserRole).toInt());
            EXPECT_EQ(model.entry(i).code, found.back());
        }
        return found;
    }

    ChoiceModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    SharedChoices shared = std::make_shared<const ChoiceEntries>(
        ChoiceEntries{choice(1100, "Alpha"), choice(1101, "Beta")});
};

TEST_F(ChoiceModelTest, InsertsAtAPositionAndAppendsBeyondTheEnd)
{
    EXPECT_EQ(model.insert(choice(1, "a"), 0), 0);
    EXPECT_EQ(model.insert(choice(2, "b"), 7), 1);
    EXPECT_EQ(model.insert(choice(3, "c"), -1), 2);
    EXPECT_EQ(model.insert(choice(4, "d"), 1), 1);
    model.insert({choice(5, "e"), choice(6, "f")}, 1);
    EXPECT_EQ(codes(), (std::vector<LONG>{1, 5, 6, 4, 2, 3}));
}

TEST_F(ChoiceModelTest, ATailStandsBehindAndIsNotCopied)
{
    model.insert(choice(1, "a"), 0);
    model.setTail(shared);
    model.insert(choice(2, "b"), 1);
    EXPECT_EQ(codes(), (std::vector<LONG>{1, 2, 1100, 1101}));
    EXPECT_EQ(&model.entry(2), shared->data());
    EXPECT_EQ(model.tail(), shared);
}

TEST_F(ChoiceModelTest, WhatComesBehindATailTakesItOver)
{
    model.setTail(shared);
    EXPECT_EQ(model.insert(choice(1, "a"), 1), 1);
    EXPECT_EQ(codes(), (std::vector<LONG>{1100, 1, 1101}));
    model.setTail(shared);
    model.setTail(shared);
    EXPECT_EQ(codes(), (std::vector<LONG>{1100, 1, 1101, 1100, 1101, 1100, 1101}));
    EXPECT_EQ(shared->size(), 2U);
}

TEST_F(ChoiceModelTest, AnEmptyTailChangesNothing)
{
    model.setTail(shared);
    model.setTail(nullptr);
    model.setTail(std::make_shared<const ChoiceEntries>());
    EXPECT_EQ(codes(), (std::vector<LONG>{1100, 1101}));
    EXPECT_NE(model.tail(), nullptr);
}

TEST_F(ChoiceModelTest, ShowsTextAndPicture)
{
    ImgLst images(QSize(4, 4));
    QImage picture(4, 4, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    images.append(picture);
    model.insert(choice(1, "a", 0), -1);
    model.insert(choice(2, "b", -1), -1);
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("a"));
    EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).isValid());
    model.setImages(&images);
    const QIcon icon = model.index(0, 0).data(Qt::DecorationRole).value<QIcon>();
    EXPECT_EQ(icon.pixmap(QSize(4, 4)).toImage().pixelColor(1, 1), QColor(Qt::red));
    EXPECT_FALSE(model.index(1, 0).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.data({}, Qt::DisplayRole).isValid());
}

TEST_F(ChoiceModelTest, AnIconOutlivesTheModelAsANullIcon)
{
    const ImgLst images(QSize(4, 4));
    QIcon icon;
    {
        ChoiceModel short_lived;
        short_lived.setImages(&images);
        short_lived.insert(choice(1, "a", 0), -1);
        icon = short_lived.index(0, 0).data(Qt::DecorationRole).value<QIcon>();
    }
    EXPECT_TRUE(icon.isNull());
    EXPECT_EQ(icon.actualSize(QSize(4, 4)), QSize());
}

} // namespace
