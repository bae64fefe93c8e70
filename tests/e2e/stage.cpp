#include "stage.h"

#include "deployment.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

const QString service = deployment::applicationId.toString();
const QString account = u"session"_s;

} // namespace

void Stage::begin()
{
    m_data = std::make_unique<QTemporaryDir>();
    m_port = 0;
    startBoard();
    m_desk.trustPagesOf(m_port);
}

void Stage::end()
{
    m_board.reset();
    m_desk.clear();
}

void Stage::startBoard()
{
    run(u"127.0.0.1"_s);
    m_port = m_board->port();
    if (m_port == 0)
        qFatal("The board did not start: %s", qPrintable(m_board->errors()));
}

void Stage::startBoardAt(const QString &address)
{
    m_board.reset();
    run(address);
    const auto answers = [this] { return Visitor(m_port).get(u"/version.json"_s).status == 200; };
    if (!QTest::qWaitFor(answers, patience))
        qFatal("The board did not start at %s: %s", qPrintable(address), qPrintable(m_board->errors()));
}

void Stage::run(const QString &address)
{
    const QString sample = qEnvironmentVariable("VEXAL_SAMPLE_FOLDER", QStringLiteral(VEXAL_SAMPLE_FOLDER));
    m_board = std::make_unique<BoardProcess>(QStringList{u"--data"_s, m_data->path(), u"--seed"_s, sample,
                                                         u"--listen"_s, u"%1:%2"_s.arg(address).arg(m_port)});
}

void Stage::keepTokenOf(const QString &email)
{
    Visitor visitor(m_port);
    const auto chosen =
        visitor.post(u"/signin"_s, "state=s&email=" + email.toUtf8(), "application/x-www-form-urlencoded");
    const auto code = QString::fromUtf8(chosen.location).section(u"code="_s, 1);
    const auto answer = visitor.post(u"/api/login/exchange"_s, {{u"code"_s, code}, {u"device"_s, u"a test"_s}});
    m_desk.keyring().put(service, account, answer.json().value("token"_L1).toString());
}

QStringList Stage::keptTokens()
{
    return m_desk.keyring().secrets(service, account);
}

Visitor Stage::visitor()
{
    return Visitor(m_port, keptTokens().value(0));
}

std::unique_ptr<VexalProcess> Stage::startSignedIn(const QStringList &launcher)
{
    keepTokenOf(mira);
    auto vexal = std::make_unique<VexalProcess>(m_desk, launcher,
                                                QStringList{u"-ServerURL"_s, u"http://127.0.0.1:%1"_s.arg(m_port)});
    if (!QTest::qWaitFor([&] { return showsTheBoard(*vexal); }, patience))
        qWarning("The board never came: %s", vexal->errors().constData());
    return vexal;
}

bool Stage::signsIn(const VexalProcess &vexal)
{
    const auto choose = [this] {
        const auto browser = m_desk.program(u"chromium"_s);
        const auto isMira = [](const Accessible::Sight &candidate) {
            return candidate.role == "push button"_L1 && candidate.name.contains(mira);
        };
        const auto person = browser ? browser->find(isMira) : std::nullopt;
        return person && person->press();
    };
    return vexal.press(signInButton) && QTest::qWaitFor(choose, patience) &&
           QTest::qWaitFor([&] { return showsTheBoard(vexal); }, patience);
}

bool Stage::signsOut(const VexalProcess &vexal)
{
    const auto press = [&] {
        const auto item = vexal.find(u"menu item"_s, u"Sign out"_s);
        return item && item->press();
    };
    const auto isOut = [&] { return vexal.shows(u"push button"_s, signInButton) && keptTokens().isEmpty(); };
    return vexal.press(u"Account"_s) && QTest::qWaitFor(press, patience) && QTest::qWaitFor(isOut, patience) &&
           !showsTheBoard(vexal);
}

bool showsFile(const VexalProcess &vexal, const QString &title)
{
    return vexal.shows(u"list item"_s, title);
}

bool showsTheBoard(const VexalProcess &vexal)
{
    return showsFile(vexal, u"Moth Carnival Box lid"_s);
}

int writeNote(int port, const QString &email, const QString &text)
{
    Visitor visitor(port);
    if (!visitor.signIn(email))
        return 0;
    const QString file = visitor.board().files.first().id;
    return visitor.post(u"/api/comments"_s, {{u"file_id"_s, file}, {u"text"_s, text}}).status;
}

bool isDrawn(const QByteArray &pixels)
{
    return pixels.count('\0') < pixels.size() / 2;
}

} // namespace vexal
