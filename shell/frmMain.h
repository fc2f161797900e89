#pragma once

#include "preview/mdPreviewTypes.h"
#include "wordexport/document/mdWordInstalled.h"

#include <QHash>
#include <QMainWindow>

#include <functional>

class QDialog;
class QMenu;
class QStackedLayout;
class QTimer;
class clsCheckState;
class clsFormPages;
class clsJournalKeeper;
class clsStripFiller;
class clsWhyOpener;
class frmScreen;
class oCheckPanel;
class oFooterBar;
class oFormPages;
class oHeaderBar;
class oNoticeBar;
class oPreviewArea;
class oPreviewGrid;
class oPreviewSheet;
class oSectionPanel;
class oTabBar;
class oTotalsStrip;
struct clsClaimPlace;
struct clsComparison;

/// The only top-level window. It displays the claim and opens the modal screens on which everything is edited. It shows
/// which claim is open, two rows of tabs, the preview and the status line. Its caption is constant; the document's name
/// and changed mark are in the header.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    explicit frmMain(QWidget *parent = nullptr);
    ~frmMain() override;

    /// Prepares the window before it is shown: the preferences, the globals, old backups, the claim at the path or a
    /// new one for an empty path, the tabs. The order is required.
    void Load(const QString &claimPath);

    /// Updates the header and the stopwatch from the claim.
    void UpdateInfo();
    /// Updates everything after a modal screen has closed and after each document command.
    void Activate();
    /// Shows the claim after Undo or Redo, keeping the scroll position. Always draws the preview, whatever the
    /// preference for refreshing it: the user would otherwise see no effect.
    void ShowTurned();
    /// Opens the screen with this text, like a click on its tab. If a screen is open, the text is stored and its screen
    /// opens after that one closes. An unknown or empty text does nothing.
    void tbSubSection_Click(int index, const QString &tag);
    /// Opens the screen on which a property is entered and sets the focus to its field.
    void OpenField(const QString &property);
    /// Opens the screen of a place in the claim, and the editor of its item if there is one, and sets the focus to the
    /// field.
    void OpenPlace(const clsClaimPlace &place);
    /// One tick of the backup timer.
    void tmrAutoBackup_Timer();

    oFooterBar *footer() const { return oFooter; }
    clsJournalKeeper &journal() const { return *m_journal; }

    // The commands of the menu.
    void New();
    void NewFromClaim();
    void Open();
    void Save();
    void SaveAs();
    void ExportToWord();
    void ExportAsPdf();
    /// Shows the claims of a folder; one of them may be opened from there.
    void FolderOfClaims();
    void Exit() { close(); }
    void ShowPreferences();
    void CheckForBlank();
    /// Opens the check panel and sets the focus to it.
    void CheckClaim();
    void CloseCheck();
    /// Moves to the next or previous finding.
    void StepThroughCheck(bool forward);
    void PreviewScheduleOfTime() { drawPreview(clsPreviewKind::ScheduleOfTime); }
    void PreviewAdditionalInformation() { drawPreview(clsPreviewKind::AdditionalInformation); }
    void FormPages();
    /// Opens the section list and sets the focus to it, or closes it.
    void SectionList();
    void WhyThisFigure();
    void CostsLimit();
    void FirmAndTeam();
    /// Opens the screen with text that was typed but not stored, and restores that text.
    void BringBack();
    void UserGuide();
    void KeyboardShortcutsList();
    void MakeASuggestion();
    void About();

    /// Whether a word processor is installed; tests replace it.
    std::function<bool()> wordInstalled = mdWordInstalled;
    /// Creates the screen of a text; null if it has none.
    std::function<QDialog *(const QString &text, QWidget *parent)> createScreen;

signals:
    /// The user has left the program, and everything has been saved.
    void Closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void build();
    /// Sets the size and place that the window has when it is not maximised.
    void placeRestored();
    void buildTabs();
    void tbSection_Click();
    void buildSections();
    void fitSections(int windowWidth);
    void openSections(bool open);
    void keepSectionsOpen(bool open);
    void renewSections();
    void walkSections(bool forward);
    void whileModal(const std::function<void()> &show);
    void drawPreview(clsPreviewKind kind);
    /// Replaces the form pages by the preview's grid.
    void returnToGrid();
    bool showsFormPages() const;
    void drawForShownWidth();
    void refreshPreview();
    void redraw(void (*routine)(clsPreviewKind));
    void buildCheck();
    void openCheck(bool open);
    void showCheck();
    void fitPreview();
    void focusPreview();
    void renewCheck();
    void openFinding(int finding);
    void tintDrawn();
    void tintChosen();
    void offerNotStored();
    void compare(const clsComparison &comparison);
    void openDropped(const QString &path);
    /// Runs a command that asks about changes and may replace the open claim.
    void replaceClaim(const std::function<void()> &command);
    /// Shows the line that offers "Firm and Team" until the user has answered it.
    void offerFirm();
    void endFirmOffer();
    /// Asks about changes, then replaces the open claim.
    void openInstead(const std::function<void()> &open);
    /// Stores the text typed in the focused box and takes the focus from it; false if the text is not valid.
    bool leaveForAnotherClaim();
    /// Asks about changes and keeps a claim whose save failed; false if the program must not end.
    bool confirmExit();

    oHeaderBar *oHeader;
    oNoticeBar *m_noticeBar;
    oSectionPanel *m_sections;
    oTabBar *tbSection;
    oTabBar *tbSubSection;
    oPreviewSheet *pctPreview;
    oPreviewGrid *sgPreview;
    oFormPages *m_formPages;
    QStackedLayout *m_previews;
    clsFormPages *m_pages;
    oTotalsStrip *m_strip;
    clsStripFiller *m_stripFiller;
    clsWhyOpener *m_why;
    clsCheckState *m_check;
    oCheckPanel *m_checkPanel;
    oPreviewArea *m_area;
    oFooterBar *oFooter;
    QTimer *tmrAutoBackup;
    clsJournalKeeper *m_journal;

    /// The last preview shown.
    clsPreviewKind m_previewKind = clsPreviewKind::ScheduleOfTime;
    int m_drawnWidth = 0;
    int m_sectionsWidth = 0; ///< width that the section list takes up at the left
    QHash<const void *, int> m_drawnItems; ///< the schedule's elements and their order in the preview
    QString m_backupTag;
    QString m_nextSection;
    std::function<void(frmScreen &screen)> m_nextWay; ///< applied to the next screen that opens
    bool m_sectionOpen = false;
    bool m_loaded = false;
    bool m_wasShown = false;
    /// Shown, but the desktop hasn't enlarged it to the screen yet.
    bool m_grows = false;
    bool m_redrawing = false;
    /// A command that ends by drawing the preview is running; a refresh before would draw it twice.
    bool m_drawingFollows = false;
    /// A modal window is open; the activation routine runs after it closes.
    bool m_modal = false;
    /// The routine has already run for an activation event that is still to come.
    bool m_activationDone = false;
};
