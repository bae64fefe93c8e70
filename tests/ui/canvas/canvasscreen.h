#pragma once

#include "appearance.h"
#include "boards.h"
#include "canvasstate.h"
#include "pictures.h"
#include "screen.h"
#include "testclock.h"

/// The canvas in a window of its own, on a file of three pages.
namespace vexal::test {

using namespace Qt::StringLiterals;

inline const QByteArray canvasQml = R"(
import QtQuick
import Vexal.Pieces
import Vexal.Canvas
CompareCanvas {
    focus: true
    state: CanvasState { store: Store }
    ActionKeys {}
    HintLayer {}
}
)";

inline Finding marked(const QString &id, const Box &box, const QString &against = u"submitted"_s)
{
    Finding finding = aFinding(id, 0, u"high"_s);
    finding.against = against;
    finding.kind = u"words"_s;
    finding.title = u"Title of "_s + id;
    finding.box = box;
    return finding;
}

/// A file of three pages: the first with both of ours, the second with what we sent, the third with none.
inline FileDetail detailOf(const QList<Finding> &findings = {})
{
    FileDetail detail = aDetail(u"f"_s, 3, findings);
    auto &pages = *detail.file.pages;
    pages[0].px = QList<double>{1000, 2000};
    pages[0].img = u"supplier/0"_s;
    pages[0].refs =
        QMap<QString, RefPage>{{u"submitted"_s, RefPage{.img = u"ours/0"_s, .px = QList<double>{1000, 2000}}},
                               {u"latest"_s, RefPage{.img = u"last/0"_s}}};
    pages[1].img = u"supplier/1"_s;
    pages[1].refs = QMap<QString, RefPage>{{u"submitted"_s, RefPage{.img = u"ours/1"_s}}};
    detail.file.supplier = u"Ostrel Print"_s;
    return detail;
}

inline Images::Fetch colours(const QHash<QString, QColor> &colourOf)
{
    return [colourOf](const QString &key, QObject *, const Images::Fetched &fetched) {
        fetched(colourOf.contains(key) ? std::optional(pictureBytes({700, 1400}, colourOf.value(key))) : std::nullopt);
    };
}

/// A store that shows one file, and the window.
class CanvasScreen
{
public:
    CanvasScreen(const FileDetail &detail, QSize size, const QHash<QString, QColor> &pictures)
        : store(clock.clock())
    {
        store.takeBoard(aBoard({detail.file}));
        store.takeDetail(detail.file.id, detail);
        screen = std::make_unique<Screen>(store, canvasQml, size, colours(pictures));
        Appearance::of(*qmlEngine(screen->window().rootObject())).setReducedMotion(true);
    }

    TestClock clock;
    Store store;
    std::unique_ptr<Screen> screen;
};

} // namespace vexal::test
