#include "typeface.h"

#include <QFontDatabase>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace vexal {
namespace {
// The family that a person chose is known only to a desktop; without one Qt falls back to whatever fontconfig calls
// sans.
bool desktopNamesAFont()
{
    return !qEnvironmentVariableIsEmpty("XDG_CURRENT_DESKTOP") && QGuiApplication::font().family() != "Sans Serif"_L1;
}

QString loadOurs()
{
    QString family;
    for (const auto weight : {"Regular", "Medium", "SemiBold", "Bold"}) {
        const int id =
            QFontDatabase::addApplicationFont(u":/vexal/fonts/Inter-%1.otf"_s.arg(QLatin1StringView(weight)));
        if (id >= 0 && family.isEmpty())
            family = QFontDatabase::applicationFontFamilies(id).value(0);
    }
    return family;
}
} // namespace

void applyTypeface(QGuiApplication &application, Typeface typeface)
{
    QFont font = application.font();
    if (typeface == Typeface::Ours || !desktopNamesAFont())
        font = QFont(loadOurs());
    // Unhinted outlines keep the drawn widths at every size.
    font.setHintingPreference(QFont::PreferNoHinting);
    application.setFont(font);
}

QFont face(qreal size, QFont::Weight weight, qreal tracking)
{
    QFont font = QGuiApplication::font();
    font.setWeight(weight);
    font.setPixelSize(qMax(1, qRound(size)));
    if (tracking != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    return font;
}
} // namespace vexal
