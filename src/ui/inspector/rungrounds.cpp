#include "rungrounds.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace vexal {

namespace {

/// What the run from `from` up to `end` (characters of the block) covers of a line; null when it does not touch it.
QRectF covered(const QTextLine &line, int from, int end)
{
    const int first = std::max(from, line.textStart());
    const int last = std::min(end, line.textStart() + line.textLength());
    if (first >= last)
        return {};
    const qreal left = line.cursorToX(first);
    const qreal right = line.cursorToX(last);
    return QRectF(QPointF(left, line.y()), QPointF(right, line.y() + line.height())).normalized();
}

} // namespace

QList<QRectF> RunGrounds::of(QQuickTextDocument *document, int from, int length)
{
    QList<QRectF> grounds;
    if (!document || length <= 0)
        return grounds;
    const QTextDocument *text = document->textDocument();
    for (QTextBlock block = text->findBlock(from); block.isValid() && block.position() < from + length;
         block = block.next()) {
        const QPointF origin = text->documentLayout()->blockBoundingRect(block).topLeft();
        const QTextLayout *layout = block.layout();
        for (int i = 0; i < layout->lineCount(); ++i) {
            const QRectF ground = covered(layout->lineAt(i), from - block.position(), from + length - block.position());
            if (!ground.isNull())
                grounds.append(ground.translated(origin));
        }
    }
    return grounds;
}

} // namespace vexal
