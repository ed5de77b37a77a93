#include "Schema.h"

namespace condtree {

namespace {

// SQL counts the characters of a text, or its bytes of UTF-8, but not its UTF-16 code units, of
// which records have 255 or 1,000. A text of n code units has at most n characters and at most 3n
// bytes, so both are checked; what slips through, with many characters beyond U+FFFF, is refused on
// reading.
constexpr const char16_t* kReferenceData[] = {
    uR"(CREATE TABLE schema_version (
        id INTEGER PRIMARY KEY CHECK (id = 1),
        product TEXT NOT NULL CHECK (product = 'condtree'),
        version INTEGER NOT NULL)%OPTIONS%)",
    u"INSERT INTO schema_version (id, product, version) VALUES (1, 'condtree', 0)",
    uR"(CREATE TABLE card_variables (
        id INTEGER PRIMARY KEY CHECK (id BETWEEN 1 AND 2147483647),
        name TEXT NOT NULL COLLATE NOCASE UNIQUE
            CHECK (length(name) BETWEEN 1 AND 255
            AND length(CAST(name AS BLOB)) <= 3 * 255 AND instr(CAST(name AS BLOB), X'00') = 0),
        type INTEGER NOT NULL CHECK (type BETWEEN -2147483648 AND 2147483647))%OPTIONS%)",
    uR"(CREATE TABLE workflows (
        id INTEGER PRIMARY KEY CHECK (id BETWEEN 1 AND 2147483647),
        name TEXT NOT NULL COLLATE NOCASE UNIQUE CHECK (length(name) > 0))%OPTIONS%)",
    uR"(CREATE TABLE states (
        id INTEGER PRIMARY KEY CHECK (id BETWEEN 1 AND 2147483647),
        workflow_id INTEGER NOT NULL REFERENCES workflows (id) ON DELETE CASCADE,
        name TEXT NOT NULL COLLATE NOCASE CHECK (length(name) > 0),
        second_name TEXT NOT NULL DEFAULT '',
        flags INTEGER NOT NULL DEFAULT 0 CHECK (flags BETWEEN 0 AND 4294967295),
        UNIQUE (workflow_id, name),
        UNIQUE (workflow_id, id))%OPTIONS%)",
    uR"(CREATE TABLE users (
        id INTEGER PRIMARY KEY CHECK (id BETWEEN 1 AND 2147483647),
        login TEXT NOT NULL COLLATE NOCASE UNIQUE
            CHECK (length(login) BETWEEN 1 AND 1000
            AND length(CAST(login AS BLOB)) <= 3 * 1000 AND instr(CAST(login AS BLOB), X'00') = 0),
        full_name TEXT NOT NULL DEFAULT ''
            CHECK (length(full_name) BETWEEN 0 AND 255
            AND length(CAST(full_name AS BLOB)) <= 3 * 255
            AND instr(CAST(full_name AS BLOB), X'00') = 0))%OPTIONS%)",
    // A database that nobody can log in to would be of no use.
    u"INSERT INTO users (id, login, full_name) VALUES (1, 'admin', 'Administrator')",
    uR"(CREATE TABLE user_groups (
        id INTEGER PRIMARY KEY CHECK (id BETWEEN 1 AND 2147483647),
        name TEXT NOT NULL COLLATE NOCASE UNIQUE
            CHECK (length(name) BETWEEN 1 AND 1000
            AND length(CAST(name AS BLOB)) <= 3 * 1000
            AND instr(CAST(name AS BLOB), X'00') = 0))%OPTIONS%)",
    uR"(CREATE TABLE group_members (
        group_id INTEGER NOT NULL REFERENCES user_groups (id) ON DELETE CASCADE,
        user_id INTEGER NOT NULL REFERENCES users (id) ON DELETE CASCADE,
        PRIMARY KEY (group_id, user_id))%OPTIONS%)",
    uR"(CREATE TABLE user_settings (
        user_id INTEGER NOT NULL REFERENCES users (id) ON DELETE CASCADE,
        entry INTEGER NOT NULL CHECK (entry BETWEEN -2147483648 AND 2147483647),
        value TEXT NOT NULL,
        PRIMARY KEY (user_id, entry))%OPTIONS%)",
    uR"(CREATE TABLE document_types (
        id INTEGER PRIMARY KEY CHECK (id BETWEEN 1 AND 2147483647),
        name TEXT NOT NULL COLLATE NOCASE UNIQUE CHECK (length(name) > 0),
        second_name TEXT NOT NULL DEFAULT '')%OPTIONS%)",
};

// changed_by is a text and no reference: who changed a condition stays known when the user has
// left. A text of 16 MiB as UTF-16 has at most 24 MiB of UTF-8.
constexpr const char16_t* kTransitions[] = {
    uR"(CREATE TABLE transitions (
        id INTEGER PRIMARY KEY CHECK (id BETWEEN 1 AND 2147483647),
        workflow_id INTEGER NOT NULL REFERENCES workflows (id) ON DELETE CASCADE,
        name TEXT NOT NULL COLLATE NOCASE CHECK (length(name) > 0),
        from_state_id INTEGER NOT NULL,
        to_state_id INTEGER NOT NULL,
        version INTEGER NOT NULL DEFAULT 1 CHECK (version >= 1),
        changed_by TEXT NOT NULL DEFAULT '',
        changed_at TEXT NOT NULL DEFAULT '',
        UNIQUE (workflow_id, name),
        FOREIGN KEY (workflow_id, from_state_id) REFERENCES states (workflow_id, id),
        FOREIGN KEY (workflow_id, to_state_id) REFERENCES states (workflow_id, id))%OPTIONS%)",
    uR"(CREATE TABLE condition_records (
        transition_id INTEGER NOT NULL REFERENCES transitions (id) ON DELETE CASCADE,
        position INTEGER NOT NULL CHECK (position BETWEEN 0 AND 2147483647),
        row_kind INTEGER NOT NULL CHECK (row_kind BETWEEN -2147483648 AND 2147483647),
        cond_type INTEGER NOT NULL CHECK (cond_type BETWEEN -2147483648 AND 2147483647),
        name TEXT NOT NULL CHECK (length(CAST(name AS BLOB)) <= 25165824),
        extra TEXT NOT NULL CHECK (length(CAST(extra AS BLOB)) <= 25165824),
        value TEXT NOT NULL CHECK (length(CAST(value AS BLOB)) <= 25165824),
        arg_type INTEGER NOT NULL CHECK (arg_type BETWEEN -2147483648 AND 2147483647),
        operator INTEGER NOT NULL CHECK (operator BETWEEN -2147483648 AND 2147483647),
        PRIMARY KEY (transition_id, position))%OPTIONS%)",
};

constexpr const char16_t* kReferenceTables[] = {
    u"schema_version", u"card_variables", u"workflows",     u"states",         u"users",
    u"user_groups",    u"group_members",  u"user_settings", u"document_types",
};

constexpr const char16_t* kTransitionTables[] = {u"transitions", u"condition_records"};

// Names stand in lists, an entry a line.
constexpr NameColumn kLineNames[] = {
    {u"card_variables", u"name"}, {u"workflows", u"name"},      {u"states", u"name"},
    {u"states", u"second_name"},  {u"users", u"login"},         {u"users", u"full_name"},
    {u"user_groups", u"name"},    {u"document_types", u"name"}, {u"document_types", u"second_name"},
    {u"transitions", u"name"},
};

constexpr SchemaStep kSteps[] = {
    {kReferenceData, kReferenceTables, {}},
    {kTransitions, kTransitionTables, {}},
    {{}, {}, kLineNames},
};

} // namespace

std::span<const SchemaStep> schemaSteps()
{
    return kSteps;
}

} // namespace condtree
