#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

#include <vector>

namespace condtree {

enum class DayHalf { None, Am, Pm };

/// What a word can mean in a date. It may mean several things: "mar" is Tuesday and March in
/// Italian.
struct DateWord {
    /// Of a year, from 1; 0 for what is no month.
    int month = 0;
    bool isWeekday = false;
    /// Stands between the fields and says nothing, as "de" in "5 de maio de 2024".
    bool isFiller = false;
    /// The same around the numbers of a time, as "ч." in "14:07 ч.".
    bool isTimeFiller = false;
    /// Stands between hour and minute, as "h" in "14 h 07".
    bool joinsTime = false;
    DayHalf half = DayHalf::None;
};

struct NamedDateWord {
    /// As folded() has it.
    QString name;
    DateWord meaning;
};

/// Where the fields of a date stand among its three numbers.
struct FieldOrder {
    int year, month, day;
};

/// How users of a locale write dates and times.
struct LocaleDateRules {
    FieldOrder order;
    /// A full stop stands between the fields of a date; elsewhere it stands between those of a
    /// time.
    bool stopSeparatesDates = false;
    /// A full stop may stand behind the last field of a date, too.
    bool stopClosesDates = false;
    /// A full stop stands between hour and minute, too.
    bool stopSeparatesTimes = false;
    /// The half of the day may stand in front of the time.
    bool halfLeads = false;
    /// In no order; the same name may be there more than once, and one may be empty.
    std::vector<NamedDateWord> words;
    QLocale locale;

    /// A text as words are compared: composed, in the lower case of the locale, every blank a
    /// plain one.
    [[nodiscard]] QString folded(QStringView text) const;
};

/// The order of a date format ("dd/MM/yyyy"); day, month and year where it lacks one of them.
[[nodiscard]] FieldOrder fieldOrderOf(QStringView dateFormat);

/// All but the words, of which there are some sixty: enough for texts without any.
[[nodiscard]] LocaleDateRules wordlessDateRules(const QLocale& locale);

[[nodiscard]] LocaleDateRules localeDateRules(const QLocale& locale);

} // namespace condtree
