#pragma once

#include <QQuickItem>
#include <QSet>
#include <QtQml/qqmlregistration.h>

namespace vexal {

/// Places its children one under the other and is as high as all of them. Those that are not visible keep their room:
/// what is out of sight can be left out of every frame without a thing moving.
class Stack : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal spacing READ spacing WRITE setSpacing NOTIFY spacingChanged FINAL)

public:
    explicit Stack(QQuickItem *parent = nullptr);

    /// Points between two children; children without a height take none.
    qreal spacing() const { return m_spacing; }
    void setSpacing(qreal spacing);

    /// Places the children anew before the next frame. To be asked for when they have changed their order; their
    /// heights and what comes and goes is seen to.
    Q_INVOKABLE void arrange();

    /// Nothing has come, gone or changed its height since the children were placed.
    Q_INVOKABLE bool isSettled() const { return m_settled; }

    /// Looks at the stretch between two heights: says of every child with a height that has left it since the last
    /// look, then of every one that has come into it.
    Q_INVOKABLE void look(qreal from, qreal to);
    /// The child was in the stretch at the last look.
    Q_INVOKABLE bool isWithin(QQuickItem *child) const { return m_within.contains(child); }

Q_SIGNALS:
    void spacingChanged();
    /// Every child is where it belongs.
    void placed();
    void approached(QQuickItem *child);
    void receded(QQuickItem *child);

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;

private:
    qreal m_spacing = 0;
    bool m_settled = true;
    QSet<QQuickItem *> m_within;
};

} // namespace vexal
