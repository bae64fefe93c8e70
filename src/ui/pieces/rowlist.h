#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace vexal {

/// A list of rows as a view wants it: each row is one value under the role "row", known by its `key`. Rows that are
/// told anew are matched by key, so that a view moves, adds and updates delegates and never builds the list again; only
/// when more than `mostMoves` rows change places is the list reset, for that costs less then.
template <typename Row>
class RowList : public QAbstractListModel
{
public:
    static constexpr int rowRole = Qt::UserRole;
    static constexpr int sectionRole = Qt::UserRole + 1;
    static constexpr int mostMoves = 64;

    using QAbstractListModel::QAbstractListModel;

    const QList<Row> &rows() const { return m_rows; }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid))
            return {};
        if constexpr (requires(const Row &row) { row.section; }) {
            if (role == sectionRole)
                return m_rows[index.row()].section;
        }
        return role == rowRole ? QVariant::fromValue(m_rows[index.row()]) : QVariant();
    }

    QHash<int, QByteArray> roleNames() const override { return {{rowRole, "row"}, {sectionRole, "section"}}; }

    /// Makes the list show these rows. Of rows with the same key the first counts.
    void setRows(QList<Row> rows)
    {
        if (sameKeys(rows))
            return updateChanged(rows);
        dropDuplicates(rows);
        removeGone(rows);
        if (!placeKept(rows)) {
            beginResetModel();
            m_rows = std::move(rows);
            endResetModel();
            return;
        }
        insertNew(rows);
        updateChanged(rows);
    }

    /// Shows another row of the same key in that place.
    void setRow(int place, const Row &row)
    {
        if (m_rows[place] == row)
            return;
        m_rows[place] = row;
        Q_EMIT this->dataChanged(index(place), index(place), {rowRole, sectionRole});
    }

private:
    // Most often nothing has come, gone or moved.
    bool sameKeys(const QList<Row> &rows) const
    {
        return std::equal(rows.cbegin(), rows.cend(), m_rows.cbegin(), m_rows.cend(),
                          [](const Row &one, const Row &other) { return one.key == other.key; });
    }

    static void dropDuplicates(QList<Row> &rows)
    {
        QSet<QString> seen;
        seen.reserve(rows.size());
        rows.removeIf([&seen](const Row &row) {
            const auto known = seen.size();
            seen.insert(row.key);
            return seen.size() == known;
        });
    }

    void removeGone(const QList<Row> &rows)
    {
        QSet<QString> wanted;
        wanted.reserve(rows.size());
        for (const Row &row : rows)
            wanted.insert(row.key);
        for (qsizetype last = m_rows.size() - 1; last >= 0; --last) {
            if (wanted.contains(m_rows[last].key))
                continue;
            qsizetype first = last;
            while (first > 0 && !wanted.contains(m_rows[first - 1].key))
                --first;
            beginRemoveRows({}, int(first), int(last));
            m_rows.remove(first, last - first + 1);
            endRemoveRows();
            last = first;
        }
    }

    // Brings the rows that stay into their new order by moving as few as possible: those outside a longest run of rows
    // that keep their order. False when that would be too many.
    bool placeKept(const QList<Row> &rows)
    {
        QHash<QString, int> oldPlace;
        oldPlace.reserve(m_rows.size());
        for (int i = 0; i < m_rows.size(); ++i)
            oldPlace.insert(m_rows[i].key, i);
        QList<int> order; // the old places of the kept rows, in their new order
        QStringList keys;
        order.reserve(m_rows.size());
        for (const Row &row : rows) {
            if (const auto found = oldPlace.constFind(row.key); found != oldPlace.cend()) {
                order.append(*found);
                keys.append(row.key);
            }
        }
        if (std::is_sorted(order.cbegin(), order.cend()))
            return true;
        const QList<bool> stays = longestRise(order);
        if (stays.count(false) > mostMoves)
            return false;
        for (int i = 0; i < order.size(); ++i) {
            if (!stays[i])
                moveBehind(keys[i], i > 0 ? keys[i - 1] : QString());
        }
        return true;
    }

    // Which members belong to a longest increasing subsequence (patience sorting, O(n log n)).
    static QList<bool> longestRise(const QList<int> &numbers)
    {
        QList<int> tails; // index of the smallest last number of a rise of each length
        QList<int> before(numbers.size(), -1);
        for (int i = 0; i < numbers.size(); ++i) {
            const auto place = std::lower_bound(tails.begin(), tails.end(), numbers[i],
                                                [&numbers](int index, int number) { return numbers[index] < number; });
            if (place != tails.begin())
                before[i] = *std::prev(place);
            if (place == tails.end())
                tails.append(i);
            else
                *place = i;
        }
        QList<bool> member(numbers.size(), false);
        for (int i = tails.isEmpty() ? -1 : tails.last(); i >= 0; i = before[i])
            member[i] = true;
        return member;
    }

    int placeOf(const QString &key) const
    {
        const auto found =
            std::find_if(m_rows.cbegin(), m_rows.cend(), [&key](const Row &row) { return row.key == key; });
        return int(found - m_rows.cbegin());
    }

    void moveBehind(const QString &key, const QString &predecessor)
    {
        const int from = placeOf(key);
        const int to = predecessor.isNull() ? 0 : placeOf(predecessor) + 1;
        if (from == to || from + 1 == to)
            return;
        beginMoveRows({}, from, from, {}, to);
        m_rows.move(from, to > from ? to - 1 : to);
        endMoveRows();
    }

    void insertNew(const QList<Row> &rows)
    {
        for (qsizetype first = 0; first < rows.size(); ++first) {
            if (first < m_rows.size() && m_rows[first].key == rows[first].key)
                continue;
            const QString next = first < m_rows.size() ? m_rows[first].key : QString();
            qsizetype last = first;
            while (last + 1 < rows.size() && (next.isNull() || rows[last + 1].key != next))
                ++last;
            beginInsertRows({}, int(first), int(last));
            m_rows.insert(first, last - first + 1, Row{});
            std::copy(rows.cbegin() + first, rows.cbegin() + last + 1, m_rows.begin() + first);
            endInsertRows();
            first = last;
        }
    }

    void updateChanged(const QList<Row> &rows)
    {
        for (qsizetype first = 0; first < rows.size(); ++first) {
            if (m_rows[first] == rows[first])
                continue;
            qsizetype last = first;
            for (; last < rows.size() && m_rows[last] != rows[last]; ++last)
                m_rows[last] = rows[last];
            Q_EMIT this->dataChanged(index(int(first)), index(int(last - 1)), {rowRole, sectionRole});
            first = last;
        }
    }

    QList<Row> m_rows;
};

} // namespace vexal
