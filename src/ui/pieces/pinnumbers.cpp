#include "pinnumbers.h"

namespace vexal {

QHash<QString, int> pinNumbers(const QList<Note> &notes, qint64 page)
{
    QHash<QString, int> numbers;
    for (const Note &note : notes) {
        if (note.page == page && note.x && note.y && !numbers.contains(note.id))
            numbers.insert(note.id, int(numbers.size()) + 1);
    }
    return numbers;
}

} // namespace vexal
