#pragma once

#include "desk.h"

namespace vexal {

/// The program vexal, running on a desk as a person's own.
class VexalProcess
{
public:
    /// Starts it on the board at the port of this machine.
    VexalProcess(const Desk &desk, int port, const QStringList &arguments = {});
    /// Starts it by a command line of another program's that ends in its own.
    VexalProcess(const Desk &desk, const QStringList &launcher, const QStringList &arguments);
    ~VexalProcess();
    VexalProcess(const VexalProcess &) = delete;
    VexalProcess &operator=(const VexalProcess &) = delete;

    qint64 id() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    /// Waits for it to end by itself: the exit status, or -1.
    int exitStatus();
    /// What it has written on standard error since the last time.
    QByteArray errors() { return m_process.readAllStandardError(); }

    /// What of that role and name its window holds now.
    std::optional<Accessible> find(const QString &role, const QString &name) const;
    bool shows(const QString &role, const QString &name) const { return find(role, name).has_value(); }
    /// Every name of the role in its window now.
    QStringList names(const QString &role) const;
    /// What has the keyboard in its window.
    std::optional<Accessible> focus() const;
    /// A banner or toast that says so, among other things.
    bool says(const QString &sentence) const;
    /// Presses the button, once it is there and can be pressed. False when that never happens.
    bool press(const QString &button) const;

private:
    const Desk &m_desk;
    QProcess m_process;
};

} // namespace vexal
