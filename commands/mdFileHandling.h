#pragma once

#include <QString>

#include <functional>

class clsZR3Form;

// The commands that open, save and replace claims. Questions and messages go through UserInterface(), and effects on
// the window through the display below, so that the commands run without either.

/// What the commands do to the main window; each may be empty.
struct clsFormDisplay {
    std::function<void()> activate; ///< the window's activation routine
    std::function<void()> clearPreview;
    std::function<void()> stopTimer; ///< the footer's stopwatch
};
void SetFormDisplay(clsFormDisplay display);

/// True if there is a claim whose text differs from the clean one.
bool FormIsDirty();

/// Asks whether to save a changed claim. True if the claim may be closed.
bool ConfirmClose();

/// Asks as above before another claim replaces it. Work that counts as saved but is not on the disk, because its save
/// failed or another program overwrote the file, is set aside first and the user is told where. False if no folder
/// accepts it: then it exists only in memory.
bool ConfirmDrop();

/// The same before the program ends. If no folder accepts the work the user is told, and the program still ends: an
/// unusable disk must not keep it open.
bool ConfirmExit();

/// Writes the claim to its path, asking for one if it has none or with `saveAs`. False if the user chose none. A failed
/// write is reported in a message box, and the claim counts as saved.
bool SaveForm(bool saveAs);

/// Asks for a path and sets it in the claim; false if the user chose none or refused to overwrite a file.
bool SaveFormDialog();

/// True if there is no file at the path or the user agrees to overwrite it.
bool ConfirmOverwrite(const QString &path);

/// Starts a new claim, after the save question unless that is skipped.
void NewForm(bool skipConfirm);

/// Starts a new claim without a question. What `fill` enters belongs to the new claim and doesn't count as a change.
void BeginForm(const std::function<void(clsZR3Form &form)> &fill);

/// Asks for a claim file; empty if the user chose none.
QString ChooseClaim();

/// Asks for a claim and opens it, after the save question. With `clearPath` the claim is detached from its file.
void OpenFormDialog(bool clearPath);

/// Opens a claim from the bytes of its file, as a journal holds them. The claim gets `path`, with `known` as the last
/// known mark of that file, and counts as changed. If the bytes are not a claim, returns false and keeps the open
/// claim.
bool OpenFormText(const QByteArray &bytes, const QString &path, const QByteArray &known);

/// Opens the claim at a path. If that is not a claim, the user is told and a new one is started. A claim whose version
/// has fewer than three fields raises the subscript error, which is not caught.
void OpenFormFile(const QString &path);
