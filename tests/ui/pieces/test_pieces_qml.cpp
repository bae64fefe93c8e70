#include "appearance.h"
#include "jobtexts.h"
#include "testclock.h"
#include "typeface.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQuickTest>

using namespace Qt::StringLiterals;

/// Rows of jobs, as a board would give them.
class Rows : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE vexal::JobRow job(const QString &status, const QStringList &steps = {}, bool stopping = false) const
    {
        vexal::Job job = jobOf(status);
        job.steps = steps;
        return vexal::jobRow(job, nullptr, stopping ? QSet<QString>{u"stop-j"_s} : QSet<QString>(), m_clock.clock());
    }
    Q_INVOKABLE vexal::ResultRow result(const QString &status, const QStringList &check) const
    {
        vexal::Job job = jobOf(status);
        job.finished = minutesAgo(1);
        job.result = vexal::JobResult{.new_files = 2, .drive_link = u"https://drive.example"_s};
        job.summary = vexal::Summary{.check = check};
        return vexal::resultRow(job, nullptr, m_clock.clock());
    }

private:
    vexal::Job jobOf(const QString &status) const
    {
        vexal::Job job;
        job.id = u"j"_s;
        job.status = status;
        job.requested_by = u"teo@x.example"_s;
        job.started = minutesAgo(3);
        return job;
    }
    double minutesAgo(int minutes) const { return double(m_clock.now().addSecs(-60 * minutes).toMSecsSinceEpoch()); }

    vexal::TestClock m_clock;
};

/// Sets the stage as the application does.
class Stage : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    static void applicationAvailable()
    {
        QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
        vexal::applyTypeface(*qGuiApp, vexal::Typeface::Ours);
        qmlRegisterSingletonType<Rows>("Vexal.Test", 1, 0, "Rows", [](QQmlEngine *, QJSEngine *) { return new Rows; });
    }
};

QUICK_TEST_MAIN_WITH_SETUP(pieces, Stage)
#include "test_pieces_qml.moc"
