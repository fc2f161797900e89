#pragma once

#include "editors/clsScreenTable.h"

// The lists of people, which a claim and the firm both have; only the names of their editors differ.

clsItemList mdGroupList(const clsScreen &(*editor)());
clsItemList mdFeeEarnerList(const clsScreen &(*editor)());
clsItemList mdCounselList(const clsScreen &(*editor)());

clsScreen mdGroupEditor(const char *name);
clsScreen mdFeeEarnerEditor(const char *name);
clsScreen mdCounselEditor(const char *name);
