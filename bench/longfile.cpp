#include "longfile.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

namespace vexal::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize paper(2480, 3508);
constexpr int margin = 240;
constexpr int lineHeight = 62;
constexpr int thumbWidth = 120;
const QString thumb = u"thumb.jpg"_s; ///< One for all pages.

void writePage(const QString &path, const QString &odd)
{
    QImage page(paper, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    QFont font = painter.font();
    font.setPixelSize(44);
    painter.setFont(font);
    painter.fillRect(margin, margin, paper.width() - 2 * margin, 900, QGradient(QGradient::WarmFlame));
    int number = 0;
    for (int y = 1300; y < paper.height() - margin; y += lineHeight) {
        const QString word = ++number % 12 == 0 ? odd : u"quietly"_s;
        painter.drawText(
            margin, y,
            u"%1  The lantern keeper counts the boats that %2 leave the harbour at night."_s.arg(number).arg(word));
    }
    painter.end();
    page.save(path, "JPG", 92);
}

void writeThumb(const QString &path, const QString &page)
{
    QImage(page).scaledToWidth(thumbWidth, Qt::SmoothTransformation).save(path, "JPG", 92);
}

QString pictureOf(const QString &folder, const char *page, const QString &key)
{
    QFile::link(QLatin1String(page), folder + u'/' + QString(key).replace(u'/', u'_'));
    return key;
}

Page pageAt(const QString &folder, int index)
{
    const QList<double> px{double(paper.width()), double(paper.height())};
    RefPage ours{.i = index};
    ours.img = pictureOf(folder, ourPage, u"ours/%1.jpg"_s.arg(index));
    ours.px = px;
    Page page{.i = index};
    page.img = pictureOf(folder, supplierPage, u"supplier/%1.jpg"_s.arg(index));
    page.thumb = thumb;
    page.px = px;
    page.refs = {{u"submitted"_s, ours}};
    return page;
}

Finding findingAt(int index)
{
    Finding finding;
    finding.id = u"finding-%1"_s.arg(index);
    finding.file_id = u"long"_s;
    finding.against = u"submitted"_s;
    finding.kind = u"words"_s;
    finding.severity = index % 3 == 0 ? u"high"_s : u"medium"_s;
    finding.title = u"“quietly” reads “softly” in line %1"_s.arg(index + 1);
    finding.detail = u"Both words fit the line, so nothing has moved around them."_s;
    finding.before = u"the boats that quietly leave the harbour"_s;
    finding.after = u"the boats that softly leave the harbour"_s;
    finding.box = {0.1 + index % 20 * 0.04, 0.4 + (index - index % 20) * 0.001, 0.03, 0.01};
    finding.state = u"open"_s;
    return finding;
}

} // namespace

Sample longFile(const QString &folder, int pages, int findings)
{
    writePage(folder + u'/' + QLatin1String(supplierPage), u"softly"_s);
    writePage(folder + u'/' + QLatin1String(ourPage), u"quietly"_s);
    writeThumb(folder + u'/' + thumb, folder + u'/' + QLatin1String(supplierPage));
    FileItem file{.id = u"long"_s};
    file.title = u"The Lantern Keeper"_s;
    file.supplier = u"Ostrel Print"_s;
    file.status = u"new"_s;
    file.page_count = pages;
    file.pages.emplace();
    for (int i = 0; i < pages; ++i)
        file.pages->append(pageAt(folder, i));
    FileDetail detail{.file = file};
    for (int i = 0; i < findings; ++i)
        detail.findings.append(findingAt(i));
    Sample sample;
    sample.board.files = {file};
    sample.details.insert(file.id, detail);
    return sample;
}

} // namespace vexal::bench
