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
class frmSection;
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

/// The one top-level window: a launcher and a display. Everything that is edited is edited on modal screens that it
/// opens; its own area shows which claim this is, two rows of tabs, the preview and the status line. Its caption is
/// constant, the document's name and its mark stand in the header.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    explicit frmMain(QWidget *parent = nullptr);
    ~frmMain() override;

    /// What the window does once, before it is shown: the preferences, the globals, old backups, the claim at the path
    /// or a new one for an empty path, the tabs. The order is required.
    void Load(const QString &claimPath);

    /// Refreshes the header and the stopwatch from the claim.
    void UpdateInfo();
    /// The activation routine: on the return from every modal screen and after each document command.
    void Activate();
    /// Shows the claim as it is after a step was undone or done again, at the place to which the user had scrolled: the
    /// preview too, whether or not it is refreshed by itself elsewhere. Nothing else would tell that anything happened.
    void ShowTurned();
    /// Opens the screen of a text, as a click on its tab does. While a screen is open the text is remembered, and its
    /// screen follows when that one is gone. An unknown or empty text does nothing.
    void tbSubSection_Click(int index, const QString &tag);
    /// Opens the screen on which a property is entered, with the focus on its field.
    void OpenField(const QString &property);
    /// Opens the screen of a place of the claim, and over it the editor of its item, with the focus on its field.
    void OpenPlace(const clsClaimPlace &place);
    /// One tick of the timer for backups.
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
    /// Opens the panel with what the check finds, and goes there.
    void CheckClaim();
    void CloseCheck();
    /// Goes to the next finding of the check or the one before.
    void StepThroughCheck(bool forward);
    void PreviewScheduleOfTime() { drawPreview(clsPreviewKind::ScheduleOfTime); }
    void PreviewAdditionalInformation() { drawPreview(clsPreviewKind::AdditionalInformation); }
    void FormPages();
    /// Opens the list of sections and goes there, or closes it.
    void SectionList();
    void WhyThisFigure();
    void CostsLimit();
    void FirmAndTeam();
    /// Opens the screen on which something was typed and not stored, and puts that back into it.
    void BringBack();
    void UserGuide();
    void KeyboardShortcutsList();
    void MakeASuggestion();
    void About();

    /// Whether there is a word processor; tests put another answer here.
    std::function<bool()> wordInstalled = mdWordInstalled;
    /// Makes the screen of a text, nothing for a text without one.
    std::function<QDialog *(const QString &text, QWidget *parent)> createScreen;

signals:
    /// The user has left the program, and whatever was to be saved is saved.
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
    /// The size and place to which the window is restored, on the screen as a whole.
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
    /// The grid of the preview takes the place of the form pages.
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
    /// Runs a command that asks about changes and may put another claim in the place of the open one.
    void replaceClaim(const std::function<void()> &command);
    /// Shows the line that tells of "Firm and Team", as long as the user has not answered it.
    void offerFirm();
    void endFirmOffer();
    /// Asks about changes, and has another claim take the place of the open one.
    void openInstead(const std::function<void()> &open);
    /// Takes the user's typed text into the claim and the user out of the box; false where its text doesn't fit.
    bool leaveForAnotherClaim();
    /// Asks about changes, and sees to it that a claim whose save failed is kept; false when the program is to stay.
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

    /// The kind of preview last shown.
    clsPreviewKind m_previewKind = clsPreviewKind::ScheduleOfTime;
    int m_drawnWidth = 0;
    int m_sectionsWidth = 0; ///< that the list of sections takes at the left
    QHash<const void *, int> m_drawnItems; ///< the schedule's elements, by the order that the preview shows them under
    QString m_backupTag;
    QString m_nextSection;
    std::function<void(frmSection &screen)> m_nextWay; ///< on the screen that opens next
    bool m_sectionOpen = false;
    bool m_loaded = false;
    bool m_wasShown = false;
    /// It is shown, and the desktop has not made it as large as the screen yet.
    bool m_grows = false;
    bool m_redrawing = false;
    /// A command that ends with drawing the preview is at work: to refresh it before would be to draw it twice.
    bool m_drawingFollows = false;
    /// A modal window of this one's is up, and the activation routine follows when it is gone.
    bool m_modal = false;
    /// The routine has run for an activation that the desktop is still to tell of.
    bool m_activationDone = false;
};
