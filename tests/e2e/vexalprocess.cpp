#include "vexalprocess.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr int patience = 30'000; ///< Milliseconds for the program to do a thing.

} // namespace

VexalProcess::VexalProcess(const Desk &desk, int port, const QStringList &arguments)
    : VexalProcess(desk, QStringList{}, QStringList{u"-ServerURL"_s, u"http://127.0.0.1:%1"_s.arg(port)} + arguments)
{
}

VexalProcess::VexalProcess(const Desk &desk, const QStringList &launcher, const QStringList &arguments)
    : m_desk(desk)
{
    const QStringList command = launcher + QStringList{vexalProgram()} + arguments;
    m_process.setProcessEnvironment(desk.environment());
    m_process.start(command.first(), command.sliced(1));
}

VexalProcess::~VexalProcess()
{
    m_process.terminate();
    if (!m_process.waitForFinished(patience))
        m_process.kill();
    m_process.waitForFinished();
    // What goes wrong in a screen is said there.
    const QByteArray said = errors();
    if (said.contains("TypeError") || said.contains("ReferenceError"))
        QTest::qFail(said.constData(), __FILE__, __LINE__);
}

int VexalProcess::exitStatus()
{
    const bool isOver = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(patience);
    return isOver && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

std::optional<Accessible> VexalProcess::find(const QString &role, const QString &name) const
{
    const auto program = m_desk.program(id());
    return program ? program->find(role, name) : std::nullopt;
}

QStringList VexalProcess::names(const QString &role) const
{
    QStringList names;
    if (const auto program = m_desk.program(id())) {
        for (const Accessible &found : program->all(role))
            names.append(found.name());
    }
    return names;
}

std::optional<Accessible> VexalProcess::focus() const
{
    const auto program = m_desk.program(id());
    return program ? program->focus() : std::nullopt;
}

bool VexalProcess::says(const QString &sentence) const
{
    const auto program = m_desk.program(id());
    return program && program->find([&](const Accessible::Sight &candidate) {
        const bool isTold = candidate.role == "alert message"_L1 || candidate.role == "notification"_L1;
        return isTold && candidate.name.contains(sentence); // a banner, or a toast
    });
}

bool VexalProcess::press(const QString &button) const
{
    return QTest::qWaitFor(
        [&] {
            const auto found = find(u"push button"_s, button);
            return found && found->isEnabled() && found->press();
        },
        patience);
}

} // namespace vexal
