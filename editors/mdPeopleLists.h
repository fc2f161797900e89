#pragma once

#include "editors/clsScreenTable.h"

// The lists of people in a claim and in the firm; they differ only in the names of their editors.

clsItemList mdGroupList(const clsScreen &(*editor)());
clsItemList mdFeeEarnerList(const clsScreen &(*editor)());
clsItemList mdCounselList(const clsScreen &(*editor)());

clsScreen mdGroupEditor(const char *name);
clsScreen mdFeeEarnerEditor(const char *name);
clsScreen mdCounselEditor(const char *name);
