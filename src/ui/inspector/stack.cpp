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
    polish();
    Q_EMIT spacingChanged();
}

void Stack::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemChildAddedChange) {
        connect(data.item, &QQuickItem::heightChanged, this, &QQuickItem::polish);
        polish();
    } else if (change == ItemChildRemovedChange) {
        data.item->disconnect(this);
        polish();
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
    Q_EMIT placed();
}

} // namespace vexal
