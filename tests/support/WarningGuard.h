#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>

namespace condtree::test {

/// Fails every test during which Qt or the code warns of something that the test did not expect.
class WarningGuard final : public testing::EmptyTestEventListener {
public:
    WarningGuard();
    void OnTestStart(const testing::TestInfo&) override;
    void OnTestEnd(const testing::TestInfo&) override;
};

/// While it lives, warnings that contain a text are expected; the test fails when none came.
class ExpectWarning {
public:
    explicit ExpectWarning(const QString& part);
    ExpectWarning(const ExpectWarning&) = delete;
    ExpectWarning& operator=(const ExpectWarning&) = delete;
    ~ExpectWarning();

    /// Counts a warning if it is one of the expected.
    bool take(const QString& text);
    [[nodiscard]] ExpectWarning* outer() const { return m_outer; }
    /// How many came so far.
    [[nodiscard]] int count() const { return m_count; }

private:
    QString m_part;
    int m_count = 0;
    ExpectWarning* m_outer;
};

} // namespace condtree::test
