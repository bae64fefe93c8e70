pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector
import Vexal.Gallery

/// The pieces with which a page is reviewed, in all their states.
Rectangle {
    id: root
    color: Theme.window

    Column {
        x: 20
        y: 20
        width: 298
        spacing: 16

        Shelf {
            caption: "State buttons: off, under the pointer, on, on their way"
            StateButton { title: "Real issue"; icon: "exclamationmark.triangle.fill"; tone: Tone.Issue }
            StateButton { title: "Fine"; icon: "checkmark"; tone: Tone.Reviewed }
            StateButton { title: "Real issue"; icon: "exclamationmark.triangle.fill"; tone: Tone.Issue; hovered: true }
            StateButton { title: "Fine"; icon: "checkmark"; tone: Tone.Reviewed; hovered: true }
            StateButton { title: "Real issue"; icon: "exclamationmark.triangle.fill"; tone: Tone.Issue; on: true }
            StateButton { title: "Fine"; icon: "checkmark"; tone: Tone.Reviewed; on: true }
            StateButton { title: "Real issue"; icon: "exclamationmark.triangle.fill"; tone: Tone.Issue; on: true; busy: true }
            StateButton {
                title: "Fine"
                icon: "checkmark"
                tone: Tone.Reviewed
                FocusRing { visible: true; around: parent.radius }
            }
        }
        Shelf {
            caption: "Cards: focused, open, fine, settled"
            FindingCard { width: 298; row: ReviewRows.focused }
            FindingCard { width: 298; row: ReviewRows.open }
            FindingCard { width: 298; row: ReviewRows.fine }
            FindingCard { width: 298; row: ReviewRows.settled; compact: true }
        }
        Shelf {
            caption: "Fold, another page"
            FoldLine { width: 298; text: "3 checks passed" }
            FoldLine { width: 298; text: "2 of our edits came through"; open: true }
            OtherPageRow { width: 298; row: ReviewRows.other }
            OtherPageRow { width: 298; row: ReviewRows.other; hovered: true }
        }
    }
    Column {
        x: 340
        y: 20
        width: 298
        spacing: 16

        Shelf {
            caption: "Notes: pinned, resolved, editing"
            NoteRow { width: 298; row: ReviewRows.pinned }
            NoteRow { width: 298; row: ReviewRows.resolved }
            NoteRow { width: 298; row: ReviewRows.edited; draft: ReviewRows.edited.text }
        }
        Shelf {
            caption: "Composer: empty, pinned, on its way"
            Composer { width: 298; view: ReviewRows.onPage; text: "" }
            Composer { width: 298; view: ReviewRows.onPin; text: "The fifth lantern is missing" }
            Composer { width: 298; view: ReviewRows.onItsWay; text: "The fifth lantern is missing" }
        }
        Shelf {
            caption: "Text area: eight lines and more"
            TextArea { width: 298; text: "1\n2\n3\n4\n5\n6\n7\n8\n9\n10" }
        }
        Shelf {
            caption: "Menu, confirmation"
            Item {
                id: stage
                width: 298
                height: 220
                IconButton {
                    id: more
                    anchors.right: parent.right
                    icon: "ellipsis"
                    help: "Edit or delete"
                    open: true
                }
                Confirmation {
                    id: question
                    parent: stage
                    opener: more
                    open: more.Window.window !== null
                    question: "Delete this note?"
                    action: "Delete"
                }
                Menu {
                    parent: stage
                    opener: more
                    open: more.Window.window !== null
                    titles: ["Edit", "Delete"]
                    destructive: 1
                }
            }
        }
    }
}
