#pragma once

#include "board.h"
#include "clock.h"
#include "filesindex.h"
#include "hold.h"
#include "toast.h"

#include <QHash>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QSet>
#include <QUrl>

#include <memory>

namespace vexal {

struct Failure;
struct News;
struct Place;
struct Request;
struct Response;
struct Surroundings;
template <typename Value>
class Result;

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
    Q_PROPERTY(QList<QString> selection READ selectionSorted NOTIFY selectionChanged)
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
    Q_PROPERTY(QList<QString> busy READ busySorted NOTIFY busyChanged)
    Q_PROPERTY(bool refreshing READ refreshing NOTIFY refreshingChanged)
    Q_PROPERTY(bool showActivity READ showActivity NOTIFY showActivityChanged)
    Q_PROPERTY(bool signingIn READ signingIn NOTIFY signingInChanged)

public:
    /// How the canvas compares the two pages.
    enum class CompareMode { Side, Overlay, Blink };
    Q_ENUM(CompareMode)

    /// An empty store of nobody signed in, which goes by `clock`. It reaches nothing but what it is given.
    explicit Store(Clock clock, QObject *parent = nullptr);
    /// The same, with a server to live on.
    Store(Clock clock, const Surroundings &surroundings, QObject *parent = nullptr);
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
    /// The person is on the way to be signed in: the sign-in page is open, or its answer is being exchanged.
    bool signingIn() const;
    /// The sign-in page that waits for the person, for when its window did not come; empty when none waits.
    QUrl signInPage() const;
    /// Why a file's detail could not be fetched, as a sentence, by file id. Only of files of which nothing is known.
    const QMap<QString, QString> &detailProblems() const { return m_detailProblems; }

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

    /// The action of that key is in flight.
    Q_INVOKABLE bool isBusy(const QString &key) const { return m_busy.contains(key); }
    /// Why the file's detail could not be fetched; empty while something is known of it, or nothing was tried.
    Q_INVOKABLE QString detailProblem(const QString &fileId) const { return m_detailProblems.value(fileId); }

    /// Signs in with the stored credential, as soon as it is known whether there is one. For the start of the program.
    void resume();
    /// Looks at the server now, and again and again until `stop`. Asks once for a newer version of the program.
    void start();
    /// Looks no more.
    void stop();
    /// Asks for the board and what belongs to it, then for the detail of the one selected file. It never fails: what
    /// goes wrong shows in `problem`, or signs out. `until` is let go when all of it has ended.
    void refresh(const Hold &until = {});
    /// A refresh that the person asked for: a toast says how it ended.
    Q_INVOKABLE void refreshNow();
    /// Asks for the detail of the file. One that cannot be had leaves the old one, or `detailProblem`. The selected
    /// file's is given up when another is selected.
    Q_INVOKABLE void loadDetail(const QString &fileId);
    /// The detail of the file is on its way.
    bool isFetching(const QString &fileId) const { return m_fetching.contains(fileId); }
    /// Asks for the newest version of the program, and offers it in `update` when it is newer than this one.
    void checkVersion();
    /// Takes the offer of a newer version away.
    Q_INVOKABLE void dismissUpdate();

    // Each action asks the server once, tells the outcome in a toast and asks for the board; its key is busy meanwhile.
    // On the sample board it does nothing and says so.

    /// Asks the worker machine to look for new proofs. Busy: "sync".
    Q_INVOKABLE void startSync();
    /// Asks the worker machine for one report on these files or, without any, on the one selected file. Busy: "report".
    Q_INVOKABLE void makeReport(const QStringList &fileIds = {});
    /// Asks the worker machine to stop the job. Busy: "stop-" and its id.
    Q_INVOKABLE void stopJob(const QString &jobId);
    /// Changes a file's review status, at once, with undo. Busy: "status".
    Q_INVOKABLE void setStatus(const QString &fileId, const QString &status);
    /// Judges a finding of a known file, at once, with undo. Busy: the finding's id.
    Q_INVOKABLE void setFindingState(const QString &findingId, const QString &state);
    /// Adds a note to the page that the one selected file shows, where the draft says. Blank text is no note. The draft
    /// is used up, and comes back should the note not be taken. Busy: "note".
    Q_INVOKABLE void addNote(const QString &text);
    /// Changes a note: its text, whether it is resolved, whether it is there at all. Busy: "n-" and its id.
    void editNote(const QString &noteId, const std::optional<QString> &text, std::optional<bool> resolved = {},
                  bool deleted = false);
    Q_INVOKABLE void saveNote(const QString &noteId, const QString &text) { editNote(noteId, text); }
    Q_INVOKABLE void resolveNote(const QString &noteId, bool resolved) { editNote(noteId, {}, resolved); }
    Q_INVOKABLE void deleteNote(const QString &noteId) { editNote(noteId, {}, {}, true); }
    /// Saves the report among the person's downloads and opens it. Busy: "open-" and its id.
    Q_INVOKABLE void openReport(const QString &reportId);
    /// Lets the person pick a photo, and makes it theirs. Busy once it is picked: "photo".
    Q_INVOKABLE void changePhoto();

    /// Opens the sign-in page; the person who comes back from it is signed in. Pressed again, it begins anew.
    Q_INVOKABLE void signIn();
    /// Waits no longer for the person to come back.
    Q_INVOKABLE void cancelSignIn();
    /// Hears what was opened into the program from outside: the way back from the sign-in page, or nothing of ours.
    void openUrl(const QUrl &url);
    /// Forgets the credential and everything that came with it. `expired`: because the server refused it.
    Q_INVOKABLE void signOut(bool expired = false);

    /// Takes a board that arrived. With nothing selected, selects the first file that is not reviewed, or the first.
    void takeBoard(BoardState board);
    /// A number for each file of the board, in its order: files with the same number are the same in every field.
    const QList<size_t> &fileFingerprints() const { return m_filesIndex.fingerprints; }
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
    /// The finding that has the focus was asked for again.
    void focusRenewed();
    void againstChanged();
    void modeChanged();
    void problemChanged();
    void lastOKChanged();
    void toastChanged();
    void pinningChanged();
    void draftPinChanged();
    void draftFindingChanged();
    /// The person has pinned the note to be written, or begun one on a finding, perhaps not for the first time.
    void noteBegun();
    void busyChanged();
    void updateChanged();
    void refreshingChanged();
    void showActivityChanged();
    void signingInChanged();
    void detailProblemsChanged();

    /// The server has answered the action of that key: it was `taken`, or it failed and what was typed is kept.
    void answered(const QString &key, bool taken);
    /// The person has signed out. A session that the server ended is not told of here.
    void signedOut();

private:
    class Change;
    using Answered = std::function<void(const Result<Response> &)>;
    using Taken = std::function<void(const Response &, const Hold &busy)>;
    using Refused = std::function<void(const Hold &busy)>;

    /// The note being written, as it was when it was sent.
    struct Draft
    {
        QString person; ///< The address of whoever is writing.
        QString fileId;
        qint64 page = 0;
        std::optional<QPointF> pin;
        std::optional<QString> finding;
    };

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
    QString fileOnCanvas() const;

    // Requests, and how they end.
    bool isLive() const;
    bool mayAct();
    /// `then` while the session of now lasts; afterwards it does nothing.
    template <typename Then>
    auto inThisSession(Then then)
    {
        return [store = QPointer(this), session = m_session, then = std::move(then)](const auto &...given) {
            if (const Store *self = store; self && self->m_session == session)
                then(given...);
        };
    }
    void ask(const Request &request, QObject *context, Answered done);
    void askForChanges(const Request &request, bool held, QObject *context, const Answered &done);
    Hold hold(const QString &key);
    void act(const QString &key, const Request &request, const QString &failureText, const Taken &taken,
             const Refused &refused = {});
    void perform(const QString &key, const std::optional<QString> &successText, const Request &request,
                 const Refused &refused = {});
    void fail(const Failure &failure, const QString &ownText);
    void offerUndo(const QString &text, std::function<void()> undo);

    // What arrives.
    void takeBoard(const IndexedBoard &board);
    void boardAnswered(const Response &answer, quint64 asked, const Hold &until);
    void boardKnown(quint64 asked, const Hold &until);
    void boardArrived(const IndexedBoard &arrived, const std::optional<QString> &tag, quint64 asked);
    void tell(const News &news);
    void boardFailed(const Failure &failure);
    void fetchDetail(const QString &fileId, QObject *context, const Hold &until);
    void detailAnswered(const QString &fileId, const Response &answer, quint64 asked, QObject *context,
                        const Hold &until);
    void detailArrived(const QString &fileId, const FileDetail &detail, const std::optional<QString> &tag,
                       quint64 asked);
    Hold fetching(const QString &fileId);
    void detailFailed(const QString &fileId, const Failure &failure);

    // What actions are made of.
    static constexpr QLatin1StringView notDone{"That didn't go through. Try again."};
    void beginWriting(const QString &what);
    void endWriting(const QString &what);
    void writeStatus(const QString &fileId, const QString &status);
    void writeFindingState(const Place &place, const QString &state);
    void forgetTag(const QString &fileId);
    std::optional<Draft> draft() const;
    void bringBack();
    std::optional<QString> titleOf(const QString &reportId) const;
    void saveAndOpen(const std::optional<QString> &title, const QByteArray &pdf, const Hold &busy);
    void sendPhoto(const std::optional<QByteArray> &jpeg);
    void beSignedIn();
    void clearSession();

    Clock m_clock;
    std::unique_ptr<Surroundings> m_world; ///< Null: there is none.
    Change *m_change = nullptr;            ///< The outermost one under way.
    FilesIndex m_filesIndex;               ///< Of the board's files.

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
    std::optional<Draft> m_posted;   ///< What the note on its way hangs on.
    std::optional<Draft> m_setAside; ///< What a note that was not taken was to hang on.
    QSet<QString> m_busy;
    std::optional<VersionInfo> m_update;
    bool m_refreshing = false;
    bool m_showActivity = false;
    QMap<QString, QString> m_detailProblems;

    // Nobody watches these.
    bool m_sample = false;
    std::optional<QString> m_etag;     ///< Entity tag of the board.
    QMap<QString, QString> m_fileTags; ///< Entity tag of each file's detail, by file id.
    std::unique_ptr<QObject> m_loop;   ///< What the refresh loop awaits hangs on it and ends with it; null: no loop.
    std::unique_ptr<QObject> m_visit;  ///< The same for the selected file; another selection is another visit.
    qint64 m_seenEvent = 0;            ///< The highest event id accounted for.
    QDateTime m_started;               ///< Older events are never announced.
    QStringList m_fetching;            ///< Each file whose detail is on its way.
    QStringList m_held;                ///< The busy key of each action in flight.
    quint64 m_session = 0;             ///< Which one it is: each sign-out ends one.

    // What is asked for and what is written here are numbered in one row, so that an answer tells whether it is older
    // than what is held.
    quint64 m_number = 0;
    quint64 m_boardTaken = 0;      ///< Number of the request whose answer is the board.
    quint64 m_boardWritten = 0;    ///< Number of the last change of the board made here.
    QHash<QString, int> m_writing; ///< How many changes of each file's detail are on their way; of the board under "".
    QHash<QString, quint64> m_detailSet; ///< Number of the request or change that each file's detail is from.
};

using CompareMode = Store::CompareMode;

/// What the compare control says for a mode: "Side by side", "Overlay", "Blink".
QString modeLabel(CompareMode mode);

} // namespace vexal
