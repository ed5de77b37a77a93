#include "DateElements.h"

#include <algorithm>
#include <array>

namespace condtree {

namespace {

using Elements = std::span<const DateToken>;

constexpr int kLongestMonth = 31;

/// Tried in this order when the locale's own makes no date.
constexpr std::array<FieldOrder, 4> kOtherOrders{{
    {.year = 2, .month = 0, .day = 1},
    {.year = 0, .month = 1, .day = 2},
    {.year = 0, .month = 2, .day = 1},
    {.year = 2, .month = 1, .day = 0},
}};

bool isWord(const DateToken& element)
{
    return element.kind == DateToken::Kind::Word;
}

/// An invalid date for a day that does not exist.
QDate existingDay(int year, int month, int day)
{
    if (year < 50)
        year += 2000;
    else if (year < 100)
        year += 1900;
    return year <= 9999 ? QDate(year, month, day) : QDate();
}

QDate inOrder(Elements numbers, FieldOrder order)
{
    const auto at = [numbers](int place) {
        return numbers[static_cast<std::size_t>(place)].number;
    };
    return existingDay(at(order.year), at(order.month), at(order.day));
}

QDate ofThreeNumbers(Elements numbers, FieldOrder order)
{
    QDate date = inOrder(numbers, order);
    for (std::size_t i = 0; !date.isValid() && i < kOtherOrders.size(); ++i)
        date = inOrder(numbers, kOtherOrders[i]);
    return date;
}

QDate ofTwoNumbers(int first, int second, FieldOrder order, int currentYear)
{
    if (first > kLongestMonth)
        return existingDay(first, second, 1);
    if (second > kLongestMonth)
        return existingDay(second, first, 1);
    const QDate monthFirst = existingDay(currentYear, first, second);
    const QDate dayFirst = existingDay(currentYear, second, first);
    if (order.month < order.day)
        return monthFirst.isValid() ? monthFirst : dayFirst;
    return dayFirst.isValid() ? dayFirst : monthFirst;
}

QDate ofMonthAndNumber(int month, int number, int currentYear)
{
    return number > kLongestMonth ? existingDay(number, month, 1)
                                  : existingDay(currentYear, month, number);
}

/// The place is that of the month among the three elements.
QDate ofMonthAndNumbers(int month, std::size_t place, int first, int second)
{
    const bool dayFirst = place == 0 || (place == 1 && first <= kLongestMonth);
    return dayFirst ? existingDay(second, month, first) : existingDay(first, month, second);
}

/// Whether a word that can also be a month is a weekday here.
bool isWeekdayIn(Elements elements, const DateToken& element)
{
    if (!isWord(element) || !element.word.isWeekday)
        return false;
    const auto words = std::count_if(elements.begin(), elements.end(), isWord);
    return element.word.month == 0 || words > 1 || elements.size() > 3;
}

Elements withoutWeekday(Elements elements)
{
    if (elements.empty())
        return elements;
    if (isWeekdayIn(elements, elements.front()))
        return elements.subspan(1);
    if (isWeekdayIn(elements, elements.back()))
        return elements.first(elements.size() - 1);
    return elements;
}

} // namespace

QDate dateOfElements(Elements elements, FieldOrder order, int currentYear)
{
    elements = withoutWeekday(elements);
    if (elements.size() < 2 || elements.size() > 3)
        return {};
    const auto word = std::find_if(elements.begin(), elements.end(), isWord);
    if (word == elements.end()) {
        return elements.size() == 3
                   ? ofThreeNumbers(elements, order)
                   : ofTwoNumbers(elements[0].number, elements[1].number, order, currentYear);
    }
    if (word->word.month == 0 || std::find_if(word + 1, elements.end(), isWord) != elements.end())
        return {};
    const auto place = static_cast<std::size_t>(word - elements.begin());
    const int first = elements[place == 0 ? 1 : 0].number;
    if (elements.size() == 2)
        return ofMonthAndNumber(word->word.month, first, currentYear);
    return ofMonthAndNumbers(word->word.month, place, first, elements[place == 2 ? 1 : 2].number);
}

} // namespace condtree
