#pragma once

#include "workbench/Database.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace condtree::test {

/// A sample database in a folder of its own, which goes at the end of the test.
class SampleDatabase {
public:
    SampleDatabase()
        : m_url(SpSqliteUrl(m_folder.filePath(QStringLiteral("sample.db"))))
    {
        EXPECT_EQ(SpMakeSampleDatabase(m_url), S_OK);
    }

    [[nodiscard]] const QString& url() const { return m_url; }
    [[nodiscard]] QString file(const char* name) const
    {
        return m_folder.filePath(QLatin1String(name));
    }

    /// Another connection.
    [[nodiscard]] std::unique_ptr<workbench::Database> open(const QString& user = {}) const
    {
        auto opened = workbench::Database::open(m_url, user);
        EXPECT_TRUE(opened.hasValue());
        return opened.hasValue() ? std::move(opened).value() : nullptr;
    }

    /// What all transitions hold, versions included.
    [[nodiscard]] std::vector<SpCondition> conditions() const
    {
        std::vector<SpCondition> all;
        const auto database = open();
        const auto transitions = database->transitions();
        for (const SpTransition& transition : transitions.value())
            all.push_back(database->load(transition).value());
        EXPECT_EQ(all.size(), 12U);
        return all;
    }

private:
    QTemporaryDir m_folder;
    QString m_url;
};

inline bool sameConditions(const std::vector<SpCondition>& a, const std::vector<SpCondition>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const SpCondition& x, const SpCondition& y) {
                          return x.version == y.version && x.records == y.records;
                      });
}

} // namespace condtree::test
