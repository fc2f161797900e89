#pragma once

#include "base/Money.h"
#include "base/mdRequired.h"
#include "wordexport/clsExportPage.h"

// Short forms for the rows of a page's table: a placeholder, the property that it shows, and the class in which it is
// typed, shown by the macro's name. `form` is the claim and `bill` its bill, for sums over the schedule.

/// A boolean as the text for a tick box.
inline QString mdTickText(bool ticked)
{
    return ticked ? QStringLiteral("True") : QStringLiteral("False");
}

/// The number of items in a list of the claim, such as `mdCountOf<&clsZR3Form::ExpertInvoicesCollection>`.
template <auto Collection> int mdCountOf(const clsZR3Form &form)
{
    return int((form.*Collection)().size());
}

/// The order of item `i` of such a collection; 0 if there is none.
template <auto Collection> int mdOrderIn(const clsZR3Form &form, int i)
{
    const auto &items = (form.*Collection)();
    return i >= 1 && i <= int(items.size()) ? items[size_t(i - 1)]->OrderID() : 0;
}

/// Item `i` of a list by its order, such as `mdItemAt<&clsZR3Form::ExpertInvoiceByOrderID>`; the object error if the
/// list has no such item.
template <auto ByOrderID> auto mdItemAt(const clsZR3Form &form, int i)
{
    auto item = (form.*ByOrderID)(i);
    mdRequired(item);
    return item;
}

// clang-format off
#define ZR3_FIELD(placeholder, member, text, ...)                                                                      \
    clsPlaceholderRow { placeholder, [](const clsBill &bill) { return text; }, __VA_ARGS__, #member }
#define ZR3_TEXT(placeholder, member)                                                                                  \
    ZR3_FIELD(placeholder, member, bill.form().member(), clsFillClass::Text, nullptr)
#define ZR3_TICK(placeholder, member)                                                                                  \
    ZR3_FIELD(placeholder, member, mdTickText(bill.form().member()), clsFillClass::TickBox, nullptr)
#define ZR3_MONEY(placeholder, member)                                                                                 \
    ZR3_FIELD(placeholder, member, bill.form().member(), clsFillClass::Money, nullptr)
/// A text that is continued on further sheets if its box can't hold it.
#define ZR3_LONG(placeholder, member, overRun)                                                                         \
    ZR3_FIELD(placeholder, member, bill.form().member(), clsFillClass::Text, &overRun)
#define ZR3_WORKED_OUT(placeholder, expression, fill)                                                                  \
    clsPlaceholderRow { placeholder,                                                                                   \
        [](const clsBill &bill) {                                                                                      \
            [[maybe_unused]] const clsZR3Form &form = bill.form();                                                     \
            return expression;                                                                                         \
        },                                                                                                             \
        fill }
/// A calculated text.
#define ZR3_WORDS(placeholder, expression)                                                                             \
    ZR3_WORKED_OUT(placeholder, QString(expression), clsFillClass::Text)
/// A calculated amount.
#define ZR3_FIGURE(placeholder, expression)                                                                            \
    ZR3_WORKED_OUT(placeholder, MoneyToText(expression), clsFillClass::Money)
/// A figure of a form's summary, whose placeholder is its key in braces.
#define ZR3_SUMMARY(key, ofForm)                                                                                       \
    clsPlaceholderRow { "{" key "}",                                                                                   \
        [](const clsBill &bill) { return MoneyToText(mdSummaryFigure(ofForm, key)(bill)); }, clsFillClass::Money }
/// A cell of a grid: the text for item `i` of the list.
#define ZR3_CELL(expression, fill)                                                                                     \
    clsPrintedCell { []([[maybe_unused]] const clsZR3Form &form, [[maybe_unused]] int i) { return QString(expression); }, \
        clsFillClass::fill }
/// The same for a field of the item.
#define ZR3_ITEM(item, member, fill)                                                                                   \
    clsPrintedCell { [](const clsZR3Form &form, int i) { return QString((item).member()); }, clsFillClass::fill, #member }
// clang-format on
