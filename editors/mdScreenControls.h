#pragma once

#include "editors/clsScreenTable.h"

#include <QString>

class oCustomButton;
class QWidget;

// Creates, loads and stores the controls of all field kinds.

/// The record's property: the member in the table or, without one, the control's name without its prefix.
QString mdMemberOf(const clsScreenRow &row);

/// Whether a row is a control rather than an arrangement.
bool mdIsControl(const clsScreenRow &row);

/// Creates a row's control, with its name, its accessible name and the effect of its flags.
QWidget *mdMakeControl(const clsScreenRow &row, QWidget *parent);

/// Creates the button "Add" of a row with a list.
oCustomButton *mdMakeAddButton(const clsScreenRow &row, QWidget *parent);

/// Copies the row's property from the record to the control.
void mdLoadControl(const clsScreenRow &row, QWidget &control, clsXMLRecord &record);
/// Copies the control to the row's property.
void mdStoreControl(const clsScreenRow &row, const QWidget &control, clsXMLRecord &record);

/// The typed or chosen text of a control; empty for a control without a text.
QString mdTextOf(const QWidget &control);
