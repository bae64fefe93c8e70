#include "boards.h"

#include <QStringList>

#include <random>

namespace vexal {

using namespace Qt::StringLiterals;

namespace {

constexpr double start = 1'717'200'000'000; ///< 2024-06-01, in milliseconds.
constexpr double minute = 60'000;

/// Draws what a board is made of, the same every time.
class Draw
{
public:
    int below(int bound) { return int(m_random() % uint(bound)); }
    bool oneIn(int n) { return below(n) == 0; }
    double fraction() { return below(10'000) / 10'000.0; }
    /// A time within some months; the server counts in microseconds.
    double time() { return start + below(200'000) * minute + below(60'000'000) / 1000.0; }

    QString of(const QStringList &choice) { return choice[below(int(choice.size()))]; }

    QString hex(int length)
    {
        QString text;
        while (text.size() < length)
            text += u"0123456789abcdef"[below(16)];
        return text;
    }

    QString title() { return of(m_subjects) + u' ' + of(m_things); }
    QString component()
    {
        return of({u"Box"_s, u"Rule book"_s, u"Card deck"_s, u"Cover"_s, u"Dust jacket"_s, u"Inlay"_s});
    }
    QString person()
    {
        return of({u"mira"_s, u"teo"_s, u"anna.lindqvist"_s, u"j.okafor"_s}) + u"@lanternhouse.example"_s;
    }
    QString supplier() { return of({u"Grünwald Druck"_s, u"Harbour Print Co."_s, u"Papeterie Lévêque"_s}); }
    QString blob(const QString &kind) { return kind + u'/' + hex(2) + u'/' + hex(30) + u".png"_s; }
    QString link() { return u"https://drive.example/file/d/"_s + hex(33) + u"/view"_s; }

private:
    std::mt19937 m_random{20'240'601};
    QStringList m_subjects{u"The Lighthouse Keeper"_s, u"Owls of the North"_s, u"Café de l’Étoile"_s,
                           u"Midnight Garden"_s,       u"Paper Boats"_s,       u"A Winter Atlas"_s};
    QStringList m_things{u"1000-piece puzzle"_s, u"card game"_s, u"picture book"_s, u"notebook"_s, u"calendar 2025"_s};
};

Links links(Draw &draw)
{
    Links links;
    links.gmail = u"https://mail.example/mail/u/0/#inbox/"_s + draw.hex(16);
    links.drive = draw.link();
    links.drive_folder = u"https://drive.example/drive/folders/"_s + draw.hex(33);
    if (draw.oneIn(2)) {
        links.indd = draw.link();
        links.indd_name = draw.title() + u".indd"_s;
    }
    return links;
}

Ref ref(Draw &draw, const QString &role, int pages)
{
    Ref ref{.role = role};
    ref.name = draw.title() + u" v%1.pdf"_s.arg(1 + draw.below(9));
    ref.link = draw.link();
    ref.page_count = pages;
    ref.matched = pages - draw.below(2);
    if (draw.oneIn(5))
        ref.note = u"Matched by title; the page order differs."_s;
    return ref;
}

RefPage refPage(Draw &draw, int index)
{
    RefPage page;
    page.i = index;
    page.label = QString::number(index + 1);
    page.img = draw.blob(u"ref"_s);
    page.px = {1654, 2339};
    page.score = draw.fraction();
    page.how = draw.of({u"text"_s, u"picture"_s, u"order"_s});
    return page;
}

Page page(Draw &draw, int index)
{
    Page page{.i = index};
    page.label = QString::number(index + 1);
    page.w = 595.276;
    page.h = 841.89;
    page.img = draw.blob(u"page"_s);
    page.thumb = draw.blob(u"thumb"_s);
    page.px = {1654, 2339};
    page.refs = {{u"submitted"_s, refPage(draw, index)}};
    if (draw.oneIn(3))
        page.refs->insert(u"latest"_s, refPage(draw, index));
    page.ocr = draw.oneIn(10);
    return page;
}

Counts counts(Draw &draw, int pages)
{
    return {.pages = pages,
            .high = draw.below(3),
            .medium = draw.below(6),
            .low = draw.below(12),
            .expected = draw.below(5),
            .shown = draw.below(20)};
}

FileItem file(Draw &draw, int number, int pages)
{
    const int pageCount = pages > 0 ? pages : 1 + draw.below(32);
    FileItem file{.id = u"f_"_s + draw.hex(12)};
    file.key = draw.blob(u"file"_s);
    file.po = u"PO-%1"_s.arg(40'000 + number);
    file.title = draw.title();
    file.component = draw.component();
    file.supplier = draw.supplier();
    file.filename = u"%1_%2_proof%3.pdf"_s.arg(*file.po, draw.hex(6)).arg(1 + draw.below(4));
    file.kind = u"proof"_s;
    file.sender = u"prepress@printer%1.example"_s.arg(draw.below(3));
    file.received = draw.time();
    file.page_count = pageCount;
    file.links = links(draw);
    file.refs = {ref(draw, u"submitted"_s, pageCount)};
    if (draw.oneIn(2))
        file.refs->append(ref(draw, u"latest"_s, pageCount));
    file.summary = u"%1 differences on %2 of %3 pages; fonts and barcode agree."_s.arg(draw.below(20))
                       .arg(draw.below(5))
                       .arg(pageCount);
    file.counts = counts(draw, pageCount);
    file.status = draw.of({u"new"_s, u"in_review"_s, u"reviewed"_s});
    if (file.status != u"new") {
        file.status_by = draw.person();
        file.status_at = draw.time();
    }
    file.created = draw.time();
    file.rev = number;
    file.thumb = draw.blob(u"thumb"_s);
    file.tally = {.open = draw.below(9), .issues = draw.below(4), .total = draw.below(30)};
    for (int index = 0; index < pages; ++index) {
        if (!file.pages)
            file.pages.emplace();
        file.pages->append(page(draw, index));
    }
    return file;
}

Person person(Draw &draw, const QString &email)
{
    return {.email = email,
            .name = email.section(u'@', 0, 0),
            .photo = draw.blob(u"photo"_s),
            .color = u"#"_s + draw.hex(6),
            .last_seen = draw.time()};
}

Job job(Draw &draw)
{
    Job job{.id = u"j_"_s + draw.hex(10), .kind = u"sync"_s, .status = u"done"_s};
    job.requested_by = draw.person();
    job.created = job.started = job.beat = draw.time();
    job.finished = *job.started + 3 * minute;
    job.step = u"Done"_s;
    job.steps = {u"Read 14 new messages"_s, u"Filed 3 proofs"_s, u"Checked 48 pages"_s};
    job.summary = Summary{.done = {{draw.title(), draw.title()}}, .changed = {{draw.title()}}, .check = {}};
    job.result = JobResult{.new_files = 3, .report_id = {}, .drive_link = {}, .cost = draw.fraction()};
    return job;
}

Event event(Draw &draw, int number, const QString &file)
{
    return {.id = number,
            .at = draw.time(),
            .by = draw.person(),
            .kind = draw.of({u"comment"_s, u"finding"_s, u"status"_s, u"new_file"_s}),
            .file_id = file,
            .page = draw.below(16),
            .text = u"“%1” — please look at the fold."_s.arg(draw.title())};
}

Finding finding(Draw &draw, const QString &file)
{
    const auto box = [&] { return Box{draw.fraction(), draw.fraction(), draw.fraction() / 4, draw.fraction() / 16}; };
    Finding finding{.id = u"n_"_s + draw.hex(12), .file_id = file, .page = draw.below(16), .against = u"submitted"_s};
    finding.kind = draw.of({u"words"_s, u"breaks"_s, u"fonts"_s, u"barcode"_s, u"expected"_s, u"pass"_s});
    finding.severity = draw.of({u"high"_s, u"medium"_s, u"low"_s});
    finding.title = u"A word differs"_s;
    finding.detail =
        u"The supplier's page says “%1”, ours “%2”.\nThe line before agrees."_s.arg(draw.title(), draw.title());
    finding.before = draw.title();
    finding.after = draw.title();
    finding.box = box();
    finding.ref_box = box();
    if (draw.oneIn(3))
        finding.boxes = {box(), box()};
    finding.state = draw.of({u"open"_s, u"issue"_s, u"fine"_s});
    finding.ord = draw.below(100);
    return finding;
}

Note note(Draw &draw, const QString &file)
{
    return {.id = u"c_"_s + draw.hex(12),
            .file_id = file,
            .page = draw.below(16),
            .x = draw.fraction(),
            .y = draw.fraction(),
            .finding_id = {},
            .text = u"Could they move this up by 2 mm? It touches the fold."_s,
            .by = draw.person(),
            .at = draw.time(),
            .edited = {},
            .resolved = {},
            .resolved_by = {}};
}

} // namespace

BoardState busyBoard(BoardSize size)
{
    Draw draw;
    BoardState board{.rev = size.files, .me = {.email = u"mira@lanternhouse.example"_s, .name = u"Mira"_s}};
    for (int number = 0; number < 12; ++number)
        board.users += person(draw, u"person%1@lanternhouse.example"_s.arg(number));
    for (int number = 0; number < size.files; ++number)
        board.files += file(draw, number, size.pagesAFile);
    for (int number = 0; number < 20; ++number)
        board.jobs += job(draw);
    board.sync = board.jobs.first();
    for (int number = 0; number < 200; ++number)
        board.events += event(draw, number, size.files > 0 ? board.files[draw.below(size.files)].id : QString());
    return board;
}

FileDetail busyDetail(int findings)
{
    Draw draw;
    FileDetail detail{.file = file(draw, 1, 16)};
    for (int number = 0; number < findings; ++number)
        detail.findings += finding(draw, detail.file.id);
    for (int number = 0; number < findings / 3; ++number)
        detail.comments += note(draw, detail.file.id);
    return detail;
}

} // namespace vexal
