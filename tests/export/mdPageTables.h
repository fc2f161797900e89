#pragma once

#include <initializer_list>
#include <vector>

// The pages of a government form as tables, written down a second time to test those of the export: which placeholder
// shows which property, in what order and class.

enum class PageClass { Text, Tick, Money };

struct PageRow {
    const char *placeholder;
    const char *property; ///< "Section.Property", or a property of the claim itself; null for what is worked out
    PageClass fill;
};

struct PageTable {
    int number;
    std::vector<PageRow> rows;
};

/// A continuation template and what it must hold.
struct ContinuationTemplate {
    const char *name;
    std::vector<const char *> placeholders; ///< in alphabetical order
};

struct FormTables {
    const char *formType;
    std::vector<PageTable> pages;
    std::vector<ContinuationTemplate> continuations;
    unsigned ticks; ///< how many tick boxes the form has
};

extern const FormTables Claim1Tables;
extern const FormTables Claim1ATables;

// What both forms have, written once.
std::vector<PageRow> FirstPageOfBoth(); ///< from the stage number to the costs of the previous advice
std::vector<PageRow> CommunicationsOfBoth(); ///< letters out, letters in and calls, and their total
std::vector<PageRow> CostsAwardedAmountsOfBoth();
std::vector<PageRow> CostsAwardedOfBoth(); ///< what follows the amounts
PageTable DebtorsPageOfBoth(int number);

/// The rows of several tables, one table behind the other.
std::vector<PageRow> Joined(std::initializer_list<std::vector<PageRow>> tables);
