pragma Singleton
import QtQuick
import Vexal.Pieces

/// Every colour, size and motion of the window. Screens take their numbers from here and hold none of their own.
QtObject {
    id: root

    readonly property bool dark: Appearance.dark
    /// Writing of second rank and lines are one step stronger.
    readonly property bool contrast: Appearance.contrast
    /// Time stands still: nothing moves by itself.
    readonly property bool resting: Appearance.resting
    readonly property bool reducedMotion: Appearance.reducedMotion
    /// What moves for ever may: somebody can see it, and time goes on.
    readonly property bool lively: Appearance.seen && !resting
    /// The same, for what only decorates.
    readonly property bool playful: lively && !reducedMotion

    // Writing.
    readonly property color text: Appearance.colour(Role.Text, dark)
    readonly property color secondary: Appearance.colour(contrast ? Role.Text : Role.Secondary, dark)
    readonly property color tertiary: Appearance.colour(contrast ? Role.Secondary : Role.Tertiary, dark)
    readonly property color faint: Appearance.colour(contrast ? Role.Tertiary : Role.Faint, dark)
    readonly property color chosenText: Appearance.colour(contrast ? Role.Text : Role.Chosen, dark)
    readonly property color onSolid: Appearance.colour(Role.OnSolid, dark)

    // Grounds.
    readonly property color window: Appearance.colour(Role.Backdrop, dark)
    readonly property color sidebar: Appearance.colour(Role.Sidebar, dark)
    readonly property color canvas: Appearance.colour(Role.Canvas, dark)
    readonly property color card: Appearance.colour(Role.Card, dark)
    readonly property color soft: Appearance.colour(Role.Soft, dark)

    // Lines.
    readonly property color line: Appearance.colour(Role.Line, dark)
    readonly property color hair: Appearance.colour(contrast ? Role.Faint : Role.Hair, dark)
    readonly property color hair2: Appearance.colour(contrast ? Role.Tertiary : Role.Hair2, dark)

    // What lies over a ground.
    readonly property color hover: Appearance.colour(Role.Hover, dark)
    readonly property color pressed: Appearance.colour(Role.Pressed, dark)
    /// The ground of a window button, under the pointer and pressed.
    readonly property color windowButtonNear: Qt.rgba(text.r, text.g, text.b, 0.18)
    readonly property color windowButtonPressed: Qt.rgba(text.r, text.g, text.b, 0.26)
    readonly property color track: Appearance.colour(Role.Track, dark)
    readonly property color segment: Appearance.colour(Role.Segment, dark)

    // Toasts and hints.
    readonly property color toast: Appearance.colour(Role.Toast, dark)
    readonly property color toastRing: Appearance.colour(Role.ToastRing, dark)
    readonly property color toastText: Appearance.colour(Role.ToastText, dark)
    readonly property color toastAction: Appearance.colour(Role.ToastAction, dark)

    // Shadows.
    readonly property color shadow: Appearance.colour(Role.Shadow, dark)
    readonly property color pageShadow: Appearance.colour(Role.PageShadow, dark)
    readonly property color segmentShade: Appearance.colour(Role.SegmentShade, dark)

    // What lies on paper is the same in both appearances.
    readonly property color paper: Appearance.colour(Role.Paper, dark)
    readonly property color onPaper: Appearance.colour(Role.OnPaper, dark)
    readonly property color expected: Appearance.colour(Role.Expected, dark)

    // The tones.
    readonly property tint accent: Appearance.tint(Tone.Accent, dark)
    readonly property tint newFile: accent
    readonly property tint reviewed: Appearance.tint(Tone.Reviewed, dark)
    readonly property tint issue: Appearance.tint(Tone.Issue, dark)
    readonly property tint lookAt: Appearance.tint(Tone.LookAt, dark)

    // How strongly a tone's plain colour is laid on a ground.
    readonly property real chipWash: 0.12
    readonly property real pillWash: 0.10
    readonly property real pillHoverWash: 0.16
    readonly property real stateWash: 0.11
    readonly property real stateHoverWash: 0.18
    readonly property real pressedWash: 0.24
    readonly property real chosenWash: 0.55
    readonly property real chosenOutline: 0.45
    readonly property real focusRing: 0.7
    readonly property real currentWash: 0.13
    readonly property real updateWash: 0.09
    readonly property real offlineWash: 0.13
    readonly property real fieldFocus: 0.6
    /// The ground of what differs in two texts: on our side in the colour of text, on theirs in the accent.
    readonly property real oursWash: 0.09
    readonly property real theirsWash: 0.24

    // How strongly a whole piece is drawn.
    readonly property real disabled: 0.45
    readonly property real withoutLink: 0.7
    readonly property real atTheEnd: 0.35
    readonly property real judgedFine: 0.72
    readonly property real onItsWay: 0.7
    readonly property real underPointer: 0.9

    /// The room beside the pages on the canvas, over and under them, and the row of the label over each.
    readonly property int canvasSide: 18
    readonly property int canvasFoot: 14
    readonly property int labelRow: 22
    /// The title of a section, which stays at the top of its list.
    readonly property int listTitle: 30

    /// How small a pressed piece gets, and how much darker a solid one.
    readonly property real pressedScale: 0.985
    readonly property real pressedDarker: 1 / 0.88

    /// How long the standard animation takes; 0 where nothing may travel (`move`), or not even fade (`fade`).
    readonly property int standard: 320
    readonly property int move: resting || reducedMotion ? 0 : standard
    readonly property int fade: resting ? 0 : standard
    /// A spinner's turn, and half the pulse of the mark.
    readonly property int turn: 900
    readonly property int pulse: 900

    /// The window's typeface at a size in points, rounded.
    function face(size: real, weight: int, tracking: real): font {
        return Appearance.face(size, weight, tracking);
    }

    /// The colours of a tone that a row names.
    function tint(tone: int): tint {
        return Appearance.tint(tone, dark);
    }
}
