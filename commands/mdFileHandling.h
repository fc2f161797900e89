#pragma once

#include <QString>

#include <functional>

class clsZR3Form;

// The commands that change which claim is current and whether it is on the disk. What they ask and tell passes through
// UserInterface(), what they do to the window through the display below, so that they run without either.

/// What the commands do to the main window; any of it may be empty.
struct clsFormDisplay {
    std::function<void()> activate; ///< the window's activation routine
    std::function<void()> clearPreview;
    std::function<void()> stopTimer; ///< the footer's stopwatch
};
void SetFormDisplay(clsFormDisplay display);

/// True when there is a claim and its text differs from the clean one.
bool FormIsDirty();

/// Asks whether to save a changed claim. True when the user has no objection to its being dropped.
bool ConfirmClose();

/// Asks as above before another claim takes its place. Work that counts as saved and is not on the disk, since its save
/// failed or another program has written over it, is set aside first, and the user is told where. False where it could
/// be set aside nowhere: then this program is the only place that it still has.
bool ConfirmDrop();

/// The same before the program ends. Where no place took the work the user is told, and the program still ends: a disk
/// that takes nothing must not keep it open.
bool ConfirmExit();

/// Writes the claim to its path, asking for one where it has none or with `saveAs`. False when the user gave none. A
/// write that failed has shown its box and counts as saved.
bool SaveForm(bool saveAs);

/// Asks for a path and gives it to the claim; false when the user gave none or would not overwrite.
bool SaveFormDialog();

/// True when nothing lies at the path or the user agrees to overwrite it.
bool ConfirmOverwrite(const QString &path);

/// Begins a new claim, after the save question unless it is skipped.
void NewForm(bool skipConfirm);

/// Begins a new claim without a question; what `fill` puts into it is part of the new claim and no change.
void BeginForm(const std::function<void(clsZR3Form &form)> &fill);

/// Asks for the file of a claim; empty when the user gave none.
QString ChooseClaim();

/// Asks for a claim and opens it, after the save question. With `clearPath` the claim is cut off from its file.
void OpenFormDialog(bool clearPath);

/// Opens a claim from the bytes of its file, as a journal holds them. It has that path, whose file was last known by
/// that mark, and counts as changed. False where the bytes are no claim: the open one then stays.
bool OpenFormText(const QByteArray &bytes, const QString &path, const QByteArray &known);

/// Opens the claim at a path. Where that is no claim, the user is told and a new one begins. A claim whose version has
/// fewer than three fields raises the subscript error, which is not caught.
void OpenFormFile(const QString &path);
