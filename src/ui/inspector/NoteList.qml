pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// Notes, one under the other, that can be resolved, edited and deleted.
Column {
    id: root

    required property InspectorState state
    /// The rows of `noteRow`.
    required property QtObject model
    readonly property alias count: rows.count

    spacing: 12

    Accessible.role: Accessible.List
    Accessible.name: "Notes"

    Repeater {
        id: rows
        model: root.model

        NoteRow {
            id: note
            width: root.width
            draft: note.row.editing ? root.state.editText(note.row.key) : ""
            onResolveRequested: resolved => Store.resolveNote(note.row.key, resolved)
            onEditRequested: root.state.beginEdit(note.row.key)
            onTyped: text => root.state.setEditText(note.row.key, text)
            onEditCancelled: root.state.cancelEdit(note.row.key)
            onEditSaved: root.state.saveEdit(note.row.key)
            onDeleteRequested: Store.deleteNote(note.row.key)
        }
    }
}
