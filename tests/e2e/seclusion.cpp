#include "seclusion.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr int apart = CLONE_NEWNET | CLONE_NEWNS;

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0 && file.flush();
}

/// As the administrator of a world that holds this person alone.
bool secludeAsAnybody()
{
    const auto user = ::getuid();
    const auto group = ::getgid();
    return ::unshare(CLONE_NEWUSER | apart) == 0 && write(u"/proc/self/setgroups"_s, u"deny"_s) &&
           write(u"/proc/self/uid_map"_s, u"0 %1 1"_s.arg(user)) &&
           write(u"/proc/self/gid_map"_s, u"0 %1 1"_s.arg(group));
}

} // namespace

std::optional<QString> seclude()
{
    const bool isApart = ::unshare(apart) == 0 || secludeAsAnybody();
    if (isApart && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0)
        return std::nullopt;
    return u"This system lets nobody have a network and mounts of their own: "_s +
           QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace vexal
