#pragma once

#include <initializer_list>
#include <vector>

// The expected pages of the forms as tables, written by hand to test those of the export: which placeholder shows which
// property, in what order and with what class.

enum class PageClass { Text, Tick, Money };

struct PageRow {
    const char *placeholder;
    const char *property; ///< "Section.Property", or a property of the claim itself; null if computed
    PageClass fill;
};

struct PageTable {
    int number;
    std::vector<PageRow> rows;
};

/// A continuation template and its expected content.
struct ContinuationTemplate {
    const char *name;
    std::vector<const char *> placeholders; ///< in alphabetical order
};

struct FormTables {
    const char *formType;
    std::vector<PageTable> pages;
    std::vector<ContinuationTemplate> continuations;
    unsigned ticks; ///< the form's number of tick boxes
};

extern const FormTables Claim1Tables;
extern const FormTables Claim1ATables;

// What both forms share.
std::vector<PageRow> FirstPageOfBoth(); ///< from the stage number to the costs of the previous advice
std::vector<PageRow> CommunicationsOfBoth(); ///< letters out, letters in and calls, and their total
std::vector<PageRow> CostsAwardedAmountsOfBoth();
std::vector<PageRow> CostsAwardedOfBoth(); ///< what follows the amounts
PageTable DebtorsPageOfBoth(int number);

/// The rows of several tables, one after the other.
std::vector<PageRow> Joined(std::initializer_list<std::vector<PageRow>> tables);
