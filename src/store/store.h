#pragma once

#include "board.h"
#include "clock.h"
#include "toast.h"

#include <QHash>
#include <QObject>
#include <QPointF>
#include <QSet>

#include <memory>

namespace vexal {

/// The whole state of the running program: the board, what the person looks at, what is under way. It alone changes the
/// board; the screens read its fields and ask for its operations. Everything runs on the user-interface thread.
///
/// A field's signal goes out once for each real change, and only when every field that changes with it stands: a slot
/// never sees half a change. QML reads the fields that are properties, an absent text as an empty one; the records are
/// read in C++, where a reference or pointer holds until the signal of its field.
class Store : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool signedIn READ signedIn NOTIFY signedInChanged)
    Q_PROPERTY(QStringList selection READ selectionSorted NOTIFY selectionChanged)
    Q_PROPERTY(QString focus READ focusText NOTIFY focusChanged)
    Q_PROPERTY(QString against READ against NOTIFY againstChanged)
    Q_PROPERTY(CompareMode mode READ mode NOTIFY modeChanged)
    Q_PROPERTY(QString problem READ problemText NOTIFY problemChanged)
    Q_PROPERTY(QDateTime lastOK READ lastOKMoment NOTIFY lastOKChanged)
    Q_PROPERTY(vexal::Toast toast READ toastShown NOTIFY toastChanged)
    Q_PROPERTY(bool pinning READ pinning NOTIFY pinningChanged)
    Q_PROPERTY(bool hasDraftPin READ hasDraftPin NOTIFY draftPinChanged)
    Q_PROPERTY(QPointF draftPin READ draftPinPoint NOTIFY draftPinChanged)
    Q_PROPERTY(QString draftFinding READ draftFindingText NOTIFY draftFindingChanged)
    Q_PROPERTY(QStringList busy READ busySorted NOTIFY busyChanged)
    Q_PROPERTY(bool refreshing READ refreshing NOTIFY refreshingChanged)
    Q_PROPERTY(bool showActivity READ showActivity NOTIFY showActivityChanged)

public:
    /// How the canvas compares the two pages.
    enum class CompareMode { Side, Overlay, Blink };
    Q_ENUM(CompareMode)

    /// An empty store of nobody signed in, which goes by `clock`.
    explicit Store(Clock clock, QObject *parent = nullptr);
    ~Store() override;

    /// A credential is held and the board may be polled.
    bool signedIn() const { return m_signedIn; }
    /// The last board that arrived; none until the first.
    const std::optional<BoardState> &board() const { return m_board; }
    /// What is known of each file, by file id.
    const QMap<QString, FileDetail> &details() const { return m_details; }
    /// Ids of the selected files: one shows that file, several show what can be done with them together.
    const QSet<QString> &selection() const { return m_selection; }
    /// Index of the page chosen for each file id, as it was asked for: read `shownPage` to draw.
    const QMap<QString, qint64> &page() const { return m_page; }
    /// Id of the finding that is highlighted.
    const std::optional<QString> &focus() const { return m_focus; }
    /// Role of our file that supplier pages are compared with.
    const QString &against() const { return m_against; }
    /// How the canvas compares.
    CompareMode mode() const { return m_mode; }
    /// Why the last refresh failed, as a sentence; none when it succeeded.
    const std::optional<QString> &problem() const { return m_problem; }
    /// When the server last answered with a board, or that it has not changed.
    const std::optional<QDateTime> &lastOK() const { return m_lastOK; }
    /// The toast on screen.
    const std::optional<Toast> &toast() const { return m_toast; }
    /// The next click on the supplier page places a pin.
    bool pinning() const { return m_pinning; }
    /// Where the note being written is pinned, as fractions of the page's width and height.
    const std::optional<QPointF> &draftPin() const { return m_draftPin; }
    /// Id of the finding that the note being written answers.
    const std::optional<QString> &draftFinding() const { return m_draftFinding; }
    /// Keys of the actions in flight.
    const QSet<QString> &busy() const { return m_busy; }
    /// A newer version on offer.
    const std::optional<VersionInfo> &update() const { return m_update; }
    /// A refresh that the person asked for is running.
    bool refreshing() const { return m_refreshing; }
    /// The activity list is open.
    bool showActivity() const { return m_showActivity; }
    /// The board is the sample board: nothing is polled or sent.
    bool sample() const { return m_sample; }

    /// The time that the whole program goes by.
    const Clock &clock() const { return m_clock; }

    /// The board's file of that id (the first, should there be two), or null. Holds until `boardChanged`.
    const FileItem *findFile(const QString &id) const;
    /// The one selected file, or null when none or several are selected or it is no longer on the board. Holds until
    /// `boardChanged`.
    const FileItem *current() const;
    /// What is known of the file, or null when it has not been fetched. Holds until `detailsChanged`.
    const FileDetail *detail(const QString &fileId) const;
    /// Index of the page of the file to show, from 0: the chosen one, kept within the file's pages as soon as these are
    /// known. 0 for a file without a choice or without pages.
    Q_INVOKABLE qint64 shownPage(const QString &fileId) const;
    /// The label under which the screens show a person.
    QString displayName(const std::optional<QString> &email) const;
    /// The worker machine has something to do: a sync or a job is queued or running.
    bool activeWork() const;
    /// How many files are new, in decimal; none instead of 0.
    std::optional<QString> newCount() const;
    /// When something happened, as told now.
    QString relativeTime(const QDateTime &moment) const;

    /// Takes a board that arrived. With nothing selected, selects the first file that is not reviewed, or the first.
    void takeBoard(BoardState board);
    /// Takes what was fetched of a file. The first time, opens it on the page of its first finding of high severity;
    /// a page that was chosen already stays.
    void takeDetail(const QString &fileId, const FileDetail &detail);
    /// Takes a sample as if its board and each detail had been fetched by someone signed in.
    void takeSample(Sample sample);

    /// Selects this file alone or, when `additive`, adds it to the selected ones or takes it away from them. Nothing is
    /// in focus afterwards. What a note was being pinned to is dropped when the selection changes.
    Q_INVOKABLE void selectFile(const QString &id, bool additive = false);
    /// Turns to a page of the file. What a note was being pinned to is dropped when another page shows.
    Q_INVOKABLE void turnPage(const QString &fileId, qint64 index);
    /// Highlights the finding, in place of any other.
    Q_INVOKABLE void focusFinding(const QString &id);
    /// Highlights no finding.
    Q_INVOKABLE void clearFocus();
    /// Compares with our files of this role, on every page and in every file.
    Q_INVOKABLE void setAgainst(const QString &role);
    /// Compares in this way.
    Q_INVOKABLE void setMode(CompareMode mode);
    /// Makes the next click on the supplier page place a pin, or no longer.
    Q_INVOKABLE void setPinning(bool on);
    /// Pins the note being written at `place` (fractions of the page), which ends pinning.
    Q_INVOKABLE void placePin(QPointF place);
    /// Makes the note being written an answer to the finding.
    Q_INVOKABLE void answerFinding(const QString &id);
    /// The note being written belongs to the page as a whole again, and pinning ends.
    Q_INVOKABLE void clearDraft();
    /// Opens or closes the activity list.
    Q_INVOKABLE void setShowActivity(bool on);
    /// Opens the activity list, or closes it when it is open.
    Q_INVOKABLE void toggleActivity();

    /// Shows a toast in place of any other. `undo` runs when the person presses the button that says `undoLabel`.
    void showToast(const QString &text, std::optional<QString> undoLabel = {}, std::function<void()> undo = {});
    /// Takes the toast of that id away; a newer one stays.
    Q_INVOKABLE void clearToast(QUuid id);
    /// Does what the undo button of the toast on screen promises, then takes that toast away.
    Q_INVOKABLE void undoToast();

Q_SIGNALS:
    void signedInChanged();
    void boardChanged();
    void detailsChanged();
    void selectionChanged();
    void pageChanged();
    void focusChanged();
    void againstChanged();
    void modeChanged();
    void problemChanged();
    void lastOKChanged();
    void toastChanged();
    void pinningChanged();
    void draftPinChanged();
    void draftFindingChanged();
    void busyChanged();
    void updateChanged();
    void refreshingChanged();
    void showActivityChanged();

private:
    class Change;

    // What QML reads for the fields that it cannot take as they are.
    QStringList selectionSorted() const;
    QStringList busySorted() const;
    QString focusText() const { return m_focus.value_or(QString()); }
    QString problemText() const { return m_problem.value_or(QString()); }
    QString draftFindingText() const { return m_draftFinding.value_or(QString()); }
    QDateTime lastOKMoment() const { return m_lastOK.value_or(QDateTime()); }
    Toast toastShown() const { return m_toast.value_or(Toast()); }
    bool hasDraftPin() const { return m_draftPin.has_value(); }
    QPointF draftPinPoint() const { return m_draftPin.value_or(QPointF()); }

    void select(const QSet<QString> &ids);
    bool isOnCanvas(const QString &fileId) const;

    Clock m_clock;
    Change *m_change = nullptr;            ///< The outermost one under way.
    QHash<QString, qsizetype> m_rowOfFile; ///< Where each file id stands in the board's files.

    // Published: written through a Change alone.
    bool m_signedIn = false;
    std::optional<BoardState> m_board;
    QMap<QString, FileDetail> m_details;
    QSet<QString> m_selection;
    QMap<QString, qint64> m_page;
    std::optional<QString> m_focus;
    QString m_against;
    CompareMode m_mode = CompareMode::Side;
    std::optional<QString> m_problem;
    std::optional<QDateTime> m_lastOK;
    std::optional<Toast> m_toast;
    bool m_pinning = false;
    std::optional<QPointF> m_draftPin;
    std::optional<QString> m_draftFinding;
    QSet<QString> m_busy;
    std::optional<VersionInfo> m_update;
    bool m_refreshing = false;
    bool m_showActivity = false;

    // Nobody watches these.
    bool m_sample = false;
    std::optional<QString> m_etag;     ///< Entity tag of the board.
    QMap<QString, QString> m_fileTags; ///< Entity tag of each file's detail, by file id.
    std::unique_ptr<QObject> m_loop;   ///< What the refresh loop awaits hangs on it and ends with it; null: no loop.
    qint64 m_seenEvent = 0;            ///< The highest event id accounted for.
    QDateTime m_started;               ///< Older events are never announced.
};

using CompareMode = Store::CompareMode;

/// What a mode is called in data: "side", "overlay", "blink".
QString modeName(CompareMode mode);

/// What the compare control says for a mode: "Side by side", "Overlay", "Blink".
QString modeLabel(CompareMode mode);

} // namespace vexal
