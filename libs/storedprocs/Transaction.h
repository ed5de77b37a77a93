#pragma once

#include "Database.h"

#include <QSqlQuery>
#include <QVariant>

#include <cstdint>
#include <initializer_list>

namespace condtree {

/// A transaction, begun when made and rolled back when it goes without having been committed.
///
/// Behind its first failure it refuses everything: the database itself may have rolled back then,
/// and a later statement would be committed alone.
class Transaction final {
public:
    enum class Access { Read, Write };

    Transaction(Database& database, Access access);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    /// S_OK, or the first failure.
    [[nodiscard]] HRESULT result() const { return m_fault.result; }
    [[nodiscard]] bool isGood() const { return SUCCEEDED(m_fault.result) && m_isOpen; }
    /// What the first failure was, where the database is to blame.
    [[nodiscard]] DatabaseFault::Kind faultKind() const { return m_fault.kind; }

    /// Fails with a reason of the caller's; the database is not to blame.
    void fail(HRESULT result);
    /// Fails with what the database said.
    void fail(const QSqlError& error, const char* during);

    /// Commits, unless something failed. The first failure, with nothing written; S_OK otherwise.
    HRESULT commit();

    [[nodiscard]] const Database& database() const { return m_database; }

private:
    bool run(const char16_t* sql);
    void rollBack();
    void fail(const DatabaseFault& fault);

    Database& m_database;
    DatabaseFault m_fault{S_OK};
    bool m_isOpen = false;
};

/// A prepared statement within a transaction; may be run often. The transaction must outlive it.
class Statement final {
public:
    Statement(Transaction& transaction, const CString& sql);
    Statement(Transaction& transaction, const char16_t* sql);

    /// Runs it with the values of its placeholders, in order. False when it or anything before
    /// failed.
    bool exec(std::initializer_list<QVariant> values = {});
    /// Goes to the next row of the result; false at its end and on failure.
    bool next();
    /// Gives up the rest of the rows, and the read lock with them.
    void finish() { m_query.finish(); }

    // A column of the current row. What does not fit fails the transaction, with 0x80040207, and
    // reads as 0 or empty.
    [[nodiscard]] LONG number(int column);
    [[nodiscard]] std::int64_t bigNumber(int column);
    /// A number without sign.
    [[nodiscard]] DWORD flags(int column);
    [[nodiscard]] CString text(int column);
    /// A text of at most longest UTF-16 code units.
    [[nodiscard]] CString name(int column, qsizetype longest);
    /// A text that Dialect::readExactly reads.
    [[nodiscard]] CString exactText(int column);

private:
    std::int64_t numberWithin(int column, std::int64_t lowest, std::int64_t highest);
    void failOnColumn(int column, const char* why);

    Transaction& m_transaction;
    QSqlQuery m_query;
};

// Texts as the values of placeholders. Qt takes a null text for SQL's NULL, which ours never are.

[[nodiscard]] QVariant textValue(const CString& text);
/// For a placeholder of Dialect::writeExactly.
[[nodiscard]] QVariant exactTextValue(const CString& text);

} // namespace condtree
