#include "api.h"
#include "change.h"
#include "surroundings.h"

using namespace Qt::StringLiterals;

/// Requests to the server, what is busy meanwhile, and how they end.
namespace vexal {

/// There is a server, and someone it knows.
bool Store::isLive() const
{
    return m_world && !m_sample && m_signedIn;
}

/// An action may be done now. On the sample board the person is told why not.
bool Store::mayAct()
{
    if (m_sample)
        showToast(u"This is the sample board."_s);
    return isLive();
}

/// Sends the request. An answer to an earlier session is not passed on; what was waiting for it is let go.
void Store::ask(const Request &request, QObject *context, Answered done)
{
    m_world->api.send(request, context, inThisSession(std::move(done)));
}

/// Asks for what may have changed since it came with the request's entity tag. "Unchanged" is no answer for someone who
/// holds nothing: then it is asked for once more, without a tag.
void Store::askForChanges(const Request &request, bool held, QObject *context, const Answered &done)
{
    ask(request, context, [=, this](const Result<Response> &answer) {
        if (held || !answer || !answer->unchanged())
            return done(answer);
        ask({.path = request.path}, context, [done](const Result<Response> &second) {
            done(second && second->unchanged() ? Result<Response>(Failure::other()) : second);
        });
    });
}

/// Makes the key busy until the last copy of what is returned has gone.
Hold Store::hold(const QString &key)
{
    const auto write = [this] {
        Change(*this).set(m_busy, QSet<QString>(m_held.cbegin(), m_held.cend()), &Store::busyChanged);
    };
    m_held.append(key);
    write();
    return holdUntil(inThisSession([this, key, write] {
        m_held.removeOne(key);
        write();
    }));
}

void Store::act(const QString &key, const Request &request, const QString &failureText, const Taken &taken,
                const Refused &refused)
{
    ask(request, this, [=, this, busy = hold(key)](const Result<Response> &answer) {
        Q_EMIT answered(key, bool(answer));
        if (answer)
            return taken(*answer, busy);
        fail(answer.failure(), failureText);
        if (refused && answer.failure().kind != Failure::Kind::SignedOut)
            refused(busy);
    });
}

void Store::perform(const QString &key, const std::optional<QString> &successText, const Request &request,
                    const Refused &refused)
{
    const auto taken = [this, successText](const Response &, const Hold &busy) {
        if (successText)
            showToast(*successText);
        refresh(busy);
    };
    act(key, request, notDone, taken, refused);
}

/// Says what went wrong, in the failure's own words or, when it has none, in `ownText`. A refused credential signs out.
void Store::fail(const Failure &failure, const QString &ownText)
{
    if (failure.kind == Failure::Kind::SignedOut)
        signOut(true);
    else if (failure.kind != Failure::Kind::Cancelled)
        showToast(failure.sentenceOr(ownText));
}

void Store::offerUndo(const QString &text, std::function<void()> undo)
{
    showToast(text, u"Undo"_s, inThisSession(std::move(undo)));
}

} // namespace vexal
