#include "displayname.h"

#include "derived.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

QString displayName(const std::optional<QString> &email, const BoardState *board)
{
    if (!email)
        return u"Claude"_s;
    if (board && board->me.email == *email)
        return u"You"_s;
    if (board) {
        const auto person = std::find_if(board->users.cbegin(), board->users.cend(),
                                         [&](const Person &user) { return user.email == *email; });
        if (person != board->users.cend())
            return firstName(*person);
    }
    const QStringList pieces = email->split(u'@', Qt::SkipEmptyParts);
    return pieces.isEmpty() ? *email : capitalised(shownText(pieces.first()));
}

QString capitalised(const QString &text)
{
    QString answer;
    bool wordStarts = true;
    for (const uint sign : text.toUcs4()) {
        const bool letter = QChar::isLetter(sign);
        const bool first = letter && wordStarts;
        answer += QChar::fromUcs4(first ? QChar::toTitleCase(sign) : letter ? QChar::toLower(sign) : sign);
        wordStarts = sign == U' ' || (wordStarts && !letter);
    }
    return answer;
}

} // namespace vexal
