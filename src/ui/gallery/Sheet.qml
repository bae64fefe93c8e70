pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// The kit on one sheet, every piece in all its states.
Rectangle {
    id: root
    color: Theme.window

    Column {
        x: 20
        y: 20
        width: parent.width - 40
        spacing: 16

        Shelf {
            caption: "Status chips"
            StatusChip { status: "new" }
            StatusChip { status: "in_review" }
            StatusChip { status: "reviewed" }
            Chip { text: "Neutral" }
        }
        Shelf {
            caption: "Pill: rest, hover, pressed, focus, busy, disabled, filled"
            Pill { title: "Mark reviewed"; icon: "checkmark"; tone: Tone.Reviewed }
            Pill { title: "Mark reviewed"; icon: "checkmark"; tone: Tone.Reviewed; hovered: true }
            Pill { title: "Mark reviewed"; icon: "checkmark"; tone: Tone.Reviewed; pressed: true }
            Pill {
                title: "Reopen"
                icon: "arrow.uturn.backward"
                FocusRing { visible: true; around: parent.radius }
            }
            Pill { title: "Opening…"; icon: "arrow.down.doc"; busy: true }
            Pill { title: "Make report"; icon: "doc.richtext"; enabled: false }
            Pill { title: "Post"; size: 11; tone: Tone.Accent; filled: true }
            Pill { title: "Post"; size: 11; tone: Tone.Accent; filled: true; hovered: true }
            Pill { title: "Post"; size: 11; tone: Tone.Accent; filled: true; enabled: false }
        }
        Shelf {
            caption: "Link pill: rest, hover, no link"
            LinkPill { title: "InDesign"; icon: "pencil.and.ruler"; url: "x:" }
            LinkPill { title: "Last print"; icon: "book.closed"; url: "x:"; hovered: true }
            LinkPill { title: "Email"; icon: "envelope" }
        }
        Shelf {
            caption: "Big button: rest, hover, pressed, focus, busy, disabled"
            BigButton { width: 104; title: "Sync"; icon: "arrow.triangle.2.circlepath" }
            BigButton { width: 104; title: "Sync"; icon: "arrow.triangle.2.circlepath"; hovered: true }
            BigButton { width: 104; title: "Sync"; icon: "arrow.triangle.2.circlepath"; pressed: true }
            BigButton {
                width: 104
                title: "Sync"
                icon: "arrow.triangle.2.circlepath"
                FocusRing { visible: true; around: parent.radius }
            }
            BigButton { width: 104; title: "Sync"; icon: "arrow.triangle.2.circlepath"; busy: true }
            BigButton { width: 104; title: "Sync"; icon: "arrow.triangle.2.circlepath"; enabled: false }
        }
        Shelf {
            caption: "Controls"
            SegmentedControl {
                titles: ["What we sent", "Last print"]
                onChosen: index => current = index
            }
            SegmentedControl {
                titles: ["Side by side", "Overlay", "Blink"]
                current: 1
                onChosen: index => current = index
                FocusRing { visible: true; around: 7 }
            }
            Slider { value: 0.5; onMoved: to => value = to }
            Slider { value: 0.5; enabled: false }
            CheckBox { title: "Difference"; checked: true; onToggled: to => checked = to }
            CheckBox { title: "Difference"; onToggled: to => checked = to }
            CheckBox { title: "Difference"; hovered: true }
            ToolButton { title: "Note"; icon: "mappin.and.ellipse" }
            ToolButton { title: "Note"; icon: "mappin.and.ellipse"; hovered: true }
            ToolButton { title: "Note"; icon: "mappin.and.ellipse"; on: true }
            IconButton { icon: "line.3.horizontal"; size: 15; help: "Menu" }
            IconButton { icon: "line.3.horizontal"; size: 15; help: "Menu"; hovered: true }
            IconButton { icon: "line.3.horizontal"; size: 15; help: "Menu"; open: true }
            IconButton { icon: "arrow.clockwise"; size: 12; help: "Refresh" }
            IconButton { icon: "chevron.up"; size: 11; bold: true; help: "Previous page"; enabled: false }
            TextButton { title: "Stop" }
        }
        Shelf {
            caption: "Avatars: initials, live with ring, unknown; spinners 10, 11, 14, 24"
            Avatar { email: "mira@lanternhouse.example"; name: "Mira" }
            Avatar { email: "teo@lanternhouse.example"; name: "Teo"; ring: true; dot: true; ground: Theme.window }
            Avatar { email: "ada@lanternhouse.example"; name: "Ada Lindqvist" }
            Avatar {}
            Item { width: 20; height: 1 }
            Spinner { size: 10 }
            Spinner { size: 11 }
            Spinner { size: 14 }
            Spinner { size: 24 }
        }
        Shelf {
            caption: "Mark: rest 15 / 24 / 48, at its widest, one line weight"
            VexalMark { size: 15 }
            VexalMark { size: 24 }
            VexalMark { size: 48 }
            VexalMark { size: 48; working: true; gap: openGap }
            VexalMark { size: 48; line: 2 }
        }
        Shelf {
            caption: "Symbols at 9.5 bold, 12, 15 and 28"
            Repeater {
                model: ["arrow.clockwise", "arrow.down.circle.fill", "arrow.down.doc", "arrow.triangle.2.circlepath", "arrow.up.doc", "arrow.uturn.backward", "book.closed", "checkmark", "checkmark.circle.fill", "checkmark.seal", "chevron.down", "chevron.right", "chevron.up", "clock.arrow.circlepath", "doc", "doc.questionmark", "doc.richtext", "ellipsis", "ellipsis.circle", "envelope", "equal.circle", "exclamationmark", "exclamationmark.circle.fill", "exclamationmark.triangle.fill", "folder", "hand.point.up.left.fill", "line.3.horizontal", "mappin.and.ellipse", "minus", "pencil.and.ruler", "plus", "questionmark.circle", "scope", "stop.circle.fill", "text.bubble", "text.bubble.fill", "wifi.exclamationmark", "xmark", "xmark.circle.fill"]
                Row {
                    id: sample
                    required property string modelData
                    spacing: 3
                    Symbol { name: sample.modelData; size: 9.5; bold: true; color: Theme.text }
                    Symbol { name: sample.modelData; size: 12; color: Theme.secondary }
                    Symbol { name: sample.modelData; size: 15; color: Theme.accent.ink }
                    Symbol { name: sample.modelData; size: 28; color: Theme.text }
                }
            }
        }
        Shelf {
            caption: "Dotted line, toast, hint, card"
            DottedLine { width: 280 }
            ToastView { toastId: "1"; text: "Marked a real issue."; undoLabel: "Undo" }
            ToastView { toastId: "2"; text: "Saved." }
            Card { width: 90; height: 36 }
            Floating { width: 90; height: 36 }
        }
        Shelf {
            caption: "Text"
            Column {
                Label { text: "The Lantern Fox Interior"; size: 27; weight: Font.DemiBold }
                Label { text: "In line"; size: 13.5; weight: Font.DemiBold }
                Label { text: "Checks supplier mail for new proofs, files them to Drive."; size: 11.5; color: Theme.secondary }
                Label { text: "Checks supplier mail for new proofs, files them to Drive."; size: 12; color: Theme.tertiary }
                Label { text: "Checks supplier mail for new proofs, files them to Drive."; size: 12.5 }
            }
        }
    }
}
