#include "actions.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr auto program = "Vexal"_L1;
constexpr auto review = "Review"_L1;
constexpr auto view = "View"_L1;

} // namespace

Actions::Actions(QObject *parent)
    : QObject(parent)
    , m_about(add(u"About Vexal"_s, {}, program))
    , m_changePhoto(add(u"Change my photo…"_s, {}, program))
    , m_signOut(add(u"Sign out"_s, {}, program))
    , m_quit(add(u"Quit"_s, {u"Ctrl+Q"_s}, program))
    , m_sync(add(u"Sync"_s, {u"Ctrl+Shift+S"_s}, review))
    , m_refresh(add(u"Refresh"_s, {u"Ctrl+R"_s}, review))
    , m_makeReport(add(u"Make report"_s, {u"Ctrl+Shift+P"_s}, review))
    , m_markReviewed(add(u"Mark reviewed"_s, {u"Ctrl+D"_s}, review))
    , m_activity(add(u"Activity"_s, {u"Ctrl+Y"_s}, review))
    , m_sideBySide(add(u"Side by side"_s, {}, view))
    , m_overlay(add(u"Overlay"_s, {}, view))
    , m_blink(add(u"Blink"_s, {}, view))
    , m_zoomIn(add(u"Zoom in"_s, {u"Ctrl+="_s, u"Ctrl++"_s}, view, Action::Held::Repeats))
    , m_zoomOut(add(u"Zoom out"_s, {u"Ctrl+-"_s}, view, Action::Held::Repeats))
    , m_fitPage(add(u"Fit the page"_s, {u"Ctrl+0"_s}, view))
    , m_actualSize(add(u"Actual size"_s, {u"Ctrl+1"_s}, view))
    , m_previousPage(add(u"Previous page"_s, {u"Ctrl+Up"_s}, view, Action::Held::Repeats))
    , m_nextPage(add(u"Next page"_s, {u"Ctrl+Down"_s}, view, Action::Held::Repeats))
    , m_menu(add(u"Menu"_s, {u"F10"_s}))
    , m_pinNote(add(u"Pin a note"_s, {u"Ctrl+N"_s}))
    , m_close(add(u"Close"_s, {u"Escape"_s}))
{
}

Action *Actions::add(const QString &name, const QStringList &sequences, const QString &section, Action::Held held)
{
    auto *action = new Action(name, sequences, section, held, this);
    m_all.append(action);
    return action;
}

} // namespace vexal
