#include "actions.h"

using namespace Qt::StringLiterals;

namespace vexal {

Actions::Actions(QObject *parent)
    : QObject(parent)
    , m_pinNote(add(u"Pin a note"_s, {u"Ctrl+N"_s}))
    , m_previousPage(add(u"Previous page"_s, {u"Ctrl+Up"_s}))
    , m_nextPage(add(u"Next page"_s, {u"Ctrl+Down"_s}))
    , m_zoomIn(add(u"Zoom in"_s, {u"Ctrl+="_s, u"Ctrl++"_s}))
    , m_zoomOut(add(u"Zoom out"_s, {u"Ctrl+-"_s}))
    , m_fitPage(add(u"Fit the page"_s, {u"Ctrl+0"_s}))
    , m_actualSize(add(u"Actual size"_s, {u"Ctrl+1"_s}))
    , m_close(add(u"Close"_s, {u"Escape"_s}))
{
}

Action *Actions::add(const QString &name, const QStringList &sequences)
{
    auto *action = new Action(name, sequences, this);
    m_all.append(action);
    return action;
}

} // namespace vexal
