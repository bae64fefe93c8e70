#pragma once

#include "composer.h"
#include "drafts.h"
#include "noterow.h"
#include "pagereview.h"
#include "passingtime.h"
#include "rowlist.h"

namespace vexal {

/// What the inspector shows of the page on the canvas, kept in step with the store, the time and what is being written.
class InspectorState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY givenChanged REQUIRED FINAL)
    Q_PROPERTY(vexal::PassingTime *time READ time WRITE setTime NOTIFY givenChanged REQUIRED FINAL)
    Q_PROPERTY(vexal::Drafts *drafts READ drafts WRITE setDrafts NOTIFY givenChanged REQUIRED FINAL)
    Q_PROPERTY(QString file READ file NOTIFY placeChanged FINAL)
    Q_PROPERTY(int page READ page NOTIFY placeChanged FINAL)
    Q_PROPERTY(bool ready READ ready NOTIFY placeChanged FINAL)
    Q_PROPERTY(bool hasPage READ hasPage NOTIFY placeChanged FINAL)
    Q_PROPERTY(vexal::PageReview review READ review NOTIFY reviewChanged FINAL)
    Q_PROPERTY(QAbstractListModel *cards READ cards CONSTANT FINAL)
    Q_PROPERTY(QAbstractListModel *settled READ settled CONSTANT FINAL)
    Q_PROPERTY(QAbstractListModel *notes READ notes CONSTANT FINAL)
    Q_PROPERTY(QAbstractListModel *others READ others CONSTANT FINAL)
    Q_PROPERTY(vexal::ComposerView composer READ composer NOTIFY composerChanged FINAL)
    Q_PROPERTY(QString noteText READ noteText WRITE setNoteText NOTIFY noteTextChanged FINAL)

public:
    explicit InspectorState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);
    PassingTime *time() const { return m_time; }
    void setTime(PassingTime *time);
    Drafts *drafts() const { return m_drafts; }
    void setDrafts(Drafts *drafts);

    /// Id of the file and index of the page that it speaks of; it is ready once what was found in the file is here.
    QString file() const { return m_place.file; }
    int page() const { return m_place.page; }
    bool ready() const { return m_place.ready; }
    /// The file has a page to speak of.
    bool hasPage() const { return m_place.hasPage; }

    PageReview review() const { return m_review; }
    /// The findings to judge, and those that are settled, as rows of `findingRow`.
    QAbstractListModel *cards() { return &m_cards; }
    QAbstractListModel *settled() { return &m_settled; }
    /// The page's own notes, as rows of `noteRow`.
    QAbstractListModel *notes() { return &m_notes; }
    /// The notes on a finding of the page. The list goes with the finding.
    Q_INVOKABLE QAbstractListModel *notesOn(const QString &finding);
    /// The other pages on which something is open, as rows of `otherPage`.
    QAbstractListModel *others() { return &m_others; }

    ComposerView composer() const { return m_composer; }
    /// The new note for the page.
    QString noteText() const { return m_noteText; }
    void setNoteText(const QString &text);
    Q_INVOKABLE void post() { m_drafts->post(); }

    /// Where the finding stands among `cards`, or -1; and among `settled`.
    Q_INVOKABLE int cardOf(const QString &finding) const;
    Q_INVOKABLE int settledCardOf(const QString &finding) const;
    /// A press on the state button of `state`: the finding gets that state, or is open again when it had it.
    Q_INVOKABLE void judge(const QString &finding, const QString &state);

    /// Begins to edit a note of the file.
    Q_INVOKABLE void beginEdit(const QString &note);
    Q_INVOKABLE QString editText(const QString &note) const { return m_drafts->edit(note); }
    Q_INVOKABLE void setEditText(const QString &note, const QString &text);
    Q_INVOKABLE void cancelEdit(const QString &note) { m_drafts->dropEdit(note); }
    Q_INVOKABLE void saveEdit(const QString &note) { m_drafts->saveEdit(note); }

Q_SIGNALS:
    void givenChanged();
    void placeChanged();
    void reviewChanged();
    void composerChanged();
    void noteTextChanged();
    /// Another finding has the focus, or none; the cards show it already.
    void focusMoved();
    /// The person has pinned the note to be written, or begun one on a finding: the field is wanted.
    void noteBegun();
    /// Another page is spoken of, and all that is said is of that one.
    void turned();
    /// Something was written, here or there.
    void written();

private:
    struct Place
    {
        QString file;
        int page = 0;
        bool ready = false;
        bool hasPage = false;
        bool operator==(const Place &) const = default;
    };

    const FileDetail *detail() const;
    Telling telling() const;
    void tell();
    void tellPlace(const FileDetail *detail);
    void tellFindings(const FileDetail &detail);
    void tellNotes(const FileDetail &detail);
    void tellComposer();
    void tellNoteText();
    void announce(const FileDetail &detail);

    Store *m_store = nullptr;
    PassingTime *m_time = nullptr;
    Drafts *m_drafts = nullptr;
    Place m_place;
    PageReview m_review;
    ComposerView m_composer;
    QString m_noteText;
    RowList<FindingRow> m_cards;
    RowList<FindingRow> m_settled;
    RowList<NoteRow> m_notes;
    RowList<OtherPage> m_others;
    QHash<QString, RowList<NoteRow> *> m_notesOn; ///< By finding id, those that were asked for.
};

} // namespace vexal
