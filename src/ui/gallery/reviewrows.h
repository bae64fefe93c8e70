#pragma once

#include "composer.h"
#include "noterow.h"
#include "pagereview.h"

namespace vexal {

/// Rows as a page of a real board would give them.
class ReviewRows : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(vexal::FindingRow focused MEMBER m_focused CONSTANT)
    Q_PROPERTY(vexal::FindingRow open MEMBER m_open CONSTANT)
    Q_PROPERTY(vexal::FindingRow fine MEMBER m_fine CONSTANT)
    Q_PROPERTY(vexal::FindingRow settled MEMBER m_settled CONSTANT)
    Q_PROPERTY(vexal::NoteRow pinned MEMBER m_pinned CONSTANT)
    Q_PROPERTY(vexal::NoteRow resolved MEMBER m_resolved CONSTANT)
    Q_PROPERTY(vexal::NoteRow edited MEMBER m_edited CONSTANT)
    Q_PROPERTY(vexal::ComposerView onPage MEMBER m_onPage CONSTANT)
    Q_PROPERTY(vexal::ComposerView onPin MEMBER m_onPin CONSTANT)
    Q_PROPERTY(vexal::ComposerView onItsWay MEMBER m_onItsWay CONSTANT)
    Q_PROPERTY(vexal::OtherPage other MEMBER m_other CONSTANT)

public:
    explicit ReviewRows(QObject *parent = nullptr);

private:
    FindingRow m_focused, m_open, m_fine, m_settled;
    NoteRow m_pinned, m_resolved, m_edited;
    ComposerView m_onPage, m_onPin, m_onItsWay;
    OtherPage m_other;
};

} // namespace vexal
