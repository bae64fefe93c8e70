#include "stack.h"

namespace vexal {

Stack::Stack(QQuickItem *parent)
    : QQuickItem(parent)
{
}

void Stack::setSpacing(qreal spacing)
{
    if (m_spacing == spacing)
        return;
    m_spacing = spacing;
    arrange();
    Q_EMIT spacingChanged();
}

void Stack::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemChildAddedChange) {
        connect(data.item, &QQuickItem::heightChanged, this, &Stack::arrange);
        arrange();
    } else if (change == ItemChildRemovedChange) {
        data.item->disconnect(this);
        m_within.remove(data.item);
        arrange();
    }
}

void Stack::arrange()
{
    m_settled = false;
    polish();
}

void Stack::look(qreal from, qreal to)
{
    QList<QQuickItem *> gone, come;
    const QList<QQuickItem *> children = childItems();
    for (QQuickItem *child : children) {
        const bool isNear = child->height() > 0 && child->y() < to && child->y() + child->height() > from;
        if (isNear != m_within.contains(child))
            (isNear ? come : gone).append(child);
    }
    for (QQuickItem *child : gone) {
        m_within.remove(child);
        Q_EMIT receded(child);
    }
    for (QQuickItem *child : come) {
        m_within.insert(child);
        Q_EMIT approached(child);
    }
}

void Stack::updatePolish()
{
    qreal end = 0;
    const QList<QQuickItem *> children = childItems();
    for (QQuickItem *child : children) {
        if (child->height() <= 0)
            continue;
        child->setY(end > 0 ? end + m_spacing : 0);
        end = child->y() + child->height();
    }
    setImplicitHeight(end);
    m_settled = true;
    Q_EMIT placed();
}

} // namespace vexal
