#pragma once

#include "editors/clsScreenTable.h"

#include <QString>

class oCustomButton;
class QWidget;

// The kinds of field, each made, read and written in one place: what a table calls a date is a date box here.

/// The name of the record's property: the control's name less its prefix, or what the table says instead.
QString mdMemberOf(const clsScreenRow &row);

/// Whether a row stands for a control and not for an arrangement.
bool mdIsControl(const clsScreenRow &row);

/// Makes the control of a row, with its name, what is read out for it, and what its flags say.
QWidget *mdMakeControl(const clsScreenRow &row, QWidget *parent);

/// Makes the button "Add" of a row with a list.
oCustomButton *mdMakeAddButton(const clsScreenRow &row, QWidget *parent);

/// Copies the row's property from the record into the control.
void mdLoadControl(const clsScreenRow &row, QWidget &control, clsXMLRecord &record);
/// Copies the control into the row's property.
void mdStoreControl(const clsScreenRow &row, const QWidget &control, clsXMLRecord &record);

/// What is typed in a control, or chosen in it; empty for a control without a text.
QString mdTextOf(const QWidget &control);
