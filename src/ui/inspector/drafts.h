#pragma once

#include "store.h"

#include <QHash>
#include <QPair>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace vexal {

/// What the person is writing: a new note for each page, and the edits of notes. It lives as long as the window and
/// whatever the screens show meanwhile; a text goes when the server has taken it, when the person drops it, or signs
/// out. It outlives a session that the server ended, and is then there for nobody but the same person.
class Drafts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Drafts(Store &store, QObject *parent = nullptr);

    /// The one of this engine, about the engine's store.
    static Drafts *create(QQmlEngine *engine, QJSEngine *);

    /// The text of the new note for that page; empty when none was begun.
    QString note(const QString &fileId, qint64 page) const { return m_notes.value({fileId, page}); }
    void setNote(const QString &fileId, qint64 page, const QString &text);
    /// Posts the new note for the page that shows. Nothing happens while another one is on its way.
    void post();
    /// The new note for that page is on its way.
    bool isPosting(const QString &fileId, qint64 page) const { return m_posting == Page(fileId, page); }

    /// Ids of the notes that are being edited.
    QSet<QString> editing() const;
    /// The new text of a note that is being edited.
    QString edit(const QString &noteId) const { return m_edits.value(noteId).text; }
    /// Begins to edit a note of the file, from `text`. Nothing happens when it is being edited.
    void beginEdit(const QString &fileId, const QString &noteId, const QString &text);
    void setEdit(const QString &noteId, const QString &text);
    /// Drops what was typed.
    void dropEdit(const QString &noteId);
    /// Sends what was typed; the edit ends once the server has taken it.
    void saveEdit(const QString &noteId);

Q_SIGNALS:
    void notesChanged();
    /// Another set of notes is being edited.
    void editingChanged();

private:
    using Page = QPair<QString, qint64>; ///< File id and page index.

    struct Edit
    {
        QString fileId;
        QString text;
        bool saving = false;
    };

    void answered(const QString &key, bool taken);
    void letGo();
    void dropEditsOfGoneNotes();
    void keepToPerson();
    void clear();

    Store &m_store;
    QHash<Page, QString> m_notes;
    std::optional<Page> m_posting;
    QHash<QString, Edit> m_edits; ///< By note id.
    QString m_person;             ///< The address of whoever wrote all this.
};

} // namespace vexal
