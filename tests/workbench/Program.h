#pragma once

#include "SampleDatabase.h"

#include "Unprivileged.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <functional>

namespace condtree::test {

/// How a run of the program ended and what it wrote.
struct Finished {
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

/// Runs the real program over a sample database of the test's own, without a display.
class Program : public testing::Test {
protected:
    /// Runs it with these arguments and nothing else. inChild is called in the new process before
    /// it becomes the program.
    Finished runPlain(const QStringList& arguments, const QByteArray& input = {},
                      const QList<std::pair<QString, QString>>& environment = {},
                      const QString& outputFile = {},
                      const std::function<void()>& inChild = {}) const
    {
        QProcess process;
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR",
                                 "QT_LOGGING_RULES", "QT_SCALE_FACTOR", "LANGUAGE"})
            variables.remove(QLatin1String(name));
        variables.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        // Counters of coverage, which cannot be written under every condition, and would say so.
        variables.insert(QStringLiteral("GCOV_ERROR_FILE"), QStringLiteral("/dev/null"));
        variables.insert(QStringLiteral("HOME"), m_database.file("home"));
        variables.insert(QStringLiteral("XDG_DATA_HOME"), m_database.file("data"));
        variables.insert(QStringLiteral("XDG_DATA_DIRS"), m_database.file("data-dirs"));
        variables.insert(QStringLiteral("XDG_CONFIG_HOME"), m_database.file("config"));
        variables.insert(QStringLiteral("XDG_CONFIG_DIRS"), m_database.file("config-dirs"));
        variables.insert(QStringLiteral("CONDTREE_REGISTRY_DIR"), m_database.file("registry"));
        for (const auto& [name, value] : environment)
            variables.insert(name, value);
        process.setProcessEnvironment(variables);
        process.setChildProcessModifier(inChild);
        if (!outputFile.isEmpty())
            process.setStandardOutputFile(outputFile);
        process.start(QStringLiteral(CONDTREE_WORKBENCH), arguments);
        process.write(input);
        process.closeWriteChannel();
        constexpr int kPatience = 60000; // ms
        EXPECT_TRUE(process.waitForFinished(kPatience)) << process.errorString().toStdString();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

    /// Runs it on the sample database.
    Finished run(const QStringList& arguments, const QByteArray& input = {}) const
    {
        return runPlain(QStringList{QStringLiteral("--db"), m_database.url()} + arguments, input);
    }

    /// The same, for one transition.
    Finished runOn(const char* transition, const QStringList& arguments,
                   const QByteArray& input = {}) const
    {
        return run(QStringList{QStringLiteral("--transition"), QString::fromUtf8(transition)}
                       + arguments,
                   input);
    }

    /// Why a run of the program cannot be kept from a file; empty where it can. Lets others into
    /// the folder of the database.
    [[nodiscard]] QString whyPermissionsDoNotBindIt() const
    {
        QString why = whyPermissionsDoNotBind(QFileInfo(m_database.file("x")).path());
        const Unprivileged nobody;
        if (why.isEmpty() && !QFileInfo(QStringLiteral(CONDTREE_WORKBENCH)).isExecutable())
            why = QStringLiteral("an ordinary user cannot reach the program");
        return why;
    }

    static std::string outputOf(const Finished& run)
    {
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.errors.toStdString(), "");
        return run.output.toStdString();
    }

    QString fileOf(const char* name, const QByteArray& content) const
    {
        QFile file(m_database.file(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    /// Runs a statement past the library.
    void sql(const QString& statement) const
    {
        const QString name = QStringLiteral("program-test");
        {
            QSqlDatabase past = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            past.setDatabaseName(m_database.file("sample.db"));
            EXPECT_TRUE(past.open());
            EXPECT_TRUE(QSqlQuery(past).exec(statement)) << statement.toStdString();
        }
        QSqlDatabase::removeDatabase(name);
    }

    SampleDatabase m_database;
};

} // namespace condtree::test
