#pragma once

#include "transfer.h"

#include <QObject>
#include <QPointer>

#include <functional>

namespace vexal {

/// What became of a request.
struct Outcome
{
    Transfer::End end = Transfer::End::Failed;
    QUrl url = {}; ///< Where the last word came from, or should have come from.
    Response response = {};
    bool abroad = false; ///< It came from another origin than the one that was asked.
};

/// One request on its way: sends it, follows its redirects and unpacks the response. It tells the outcome once, or,
/// when the one who wants it goes first, not at all; then it deletes itself.
class Exchange : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const Outcome &)>;

    Exchange(Session &session, const Outgoing &request, const Timeouts &timeouts, QObject *context, Done done,
             QObject *parent);

private:
    void send();
    void take(Transfer::End end, const Response &response);
    void tell(Transfer::End end, const Response &response = {});

    Session &m_session;
    Outgoing m_request;
    Timeouts m_timeouts;
    QPointer<QObject> m_context;
    Done m_done;
    int m_redirects = 0;
};

} // namespace vexal
