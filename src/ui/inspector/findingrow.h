#pragma once

#include "board.h"
#include "clock.h"
#include "palette.h"
#include "passage.h"

#include <QtQml/qqmlregistration.h>

#include <QSet>

namespace vexal {

/// A finding as its card shows it.
class FindingRow
{
    Q_GADGET
    QML_VALUE_TYPE(findingRow)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString group MEMBER group FINAL)
    Q_PROPERTY(QString reference MEMBER reference FINAL)
    Q_PROPERTY(QString tag MEMBER tag FINAL)
    Q_PROPERTY(int tone READ toneValue FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(bool compared MEMBER compared FINAL)
    Q_PROPERTY(vexal::Passage ours MEMBER ours FINAL)
    Q_PROPERTY(vexal::Passage theirs MEMBER theirs FINAL)
    Q_PROPERTY(QString supplier MEMBER supplier FINAL)
    Q_PROPERTY(bool placed MEMBER placed FINAL)
    Q_PROPERTY(bool focused MEMBER focused FINAL)
    Q_PROPERTY(bool issue MEMBER issue FINAL)
    Q_PROPERTY(bool fine MEMBER fine FINAL)
    Q_PROPERTY(QString judged MEMBER judged FINAL)
    Q_PROPERTY(bool busy MEMBER busy FINAL)

public:
    QString key;       ///< The finding's id.
    QString group;     ///< Title of the group that begins with this card; empty within a group.
    QString reference; ///< "vs what we sent", beside the group's title.
    QString tag;       ///< "Fix", "Check" or "Minor".
    Tone::Value tone = Tone::Neutral;
    QString title;
    QString detail;
    bool compared = false; ///< Both sides of the difference are known: `ours` and `theirs`.
    Passage ours;
    Passage theirs;
    QString supplier;
    bool placed = false; ///< It has a place on the page.
    bool focused = false;
    bool issue = false;
    bool fine = false;
    QString judged; ///< "Mira · 6 min ago"; empty when nobody judged it.
    bool busy = false;
    int toneValue() const { return tone; }
    bool operator==(const FindingRow &) const = default;
};

/// What rows are told with: who people are, what time it is, what is under way, which finding has the focus.
struct Telling
{
    const BoardState *board = nullptr; ///< May be null.
    Clock clock;
    QSet<QString> busy; ///< Keys of the actions in flight.
    QString focus;
};

/// What a severity is called on a card, and its colour.
QString severityTag(const QString &severity);
Tone::Value severityTone(const QString &severity);

/// The state that a press on a state button asks for: the button's own or, when the finding is in it, "open".
QString stateAfter(const QString &state, const QString &pressed);

/// "vs what we sent" or, for any other role, "vs last print".
QString referencePhrase(const QString &against);

/// The finding's card, within a group.
FindingRow findingRow(const Finding &finding, const FileItem &file, const Telling &telling);

} // namespace vexal
