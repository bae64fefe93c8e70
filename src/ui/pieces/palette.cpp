#include "palette.h"

#include <algorithm>
#include <cmath>

namespace vexal {
namespace {
struct Pair
{
    QRgb light, dark;
};

// The eleven pairs that everything else is mixed from.
constexpr Pair kLine{0xE0E1E1, 0x332D29};
constexpr Pair kAccent{0xE4572E, 0xF06A3F};
constexpr Pair kSecondary{0x453D39, 0xCFC6BD};
constexpr Pair kSoft{0xECEDE1, 0x2A2621};
constexpr Pair kReviewed{0x2E8B57, 0x45B97A};
constexpr Pair kIssue{0xC8341C, 0xFF6A4F};
constexpr Pair kLookAt{0xC77A00, 0xE9A23B};
constexpr Pair kCard{0xF4F5F2, 0x26211E};
constexpr Pair kWindow{0xF3F6F7, 0x12100F};
constexpr Pair kText{0x0F0B0A, 0xF3F1EC};
constexpr Pair kSidebar{0xEBEEEF, 0x171412};

constexpr Pair kBlackOrWhite{0x000000, 0xFFFFFF};
constexpr Pair kBlack{0x000000, 0x000000};
constexpr Pair kWhite{0xFFFFFF, 0xFFFFFF};

QColor mixed(Pair pair, bool dark, double lightOpacity = 1, double darkOpacity = 1)
{
    QColor colour = QColor::fromRgb(dark ? pair.dark : pair.light);
    colour.setAlphaF(static_cast<float>(dark ? darkOpacity : lightOpacity));
    return colour;
}

// The bare pair differs from the window by too little in light, so there it lies under a veil of white.
QColor card(bool dark)
{
    const QColor bare = mixed(kCard, dark);
    return dark ? bare : laidOver(mixed(kWhite, dark, 0.62), bare);
}

// A shade under the window in light, so that white paper stands out; in dark nothing is darker than the window.
QColor canvas(bool dark)
{
    const QColor window = mixed(kWindow, dark);
    return dark ? window : laidOver(mixed(kText, dark, 0.045), window);
}

double linear(float channel)
{
    return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}
} // namespace

QColor colour(Role::Value role, bool dark)
{
    switch (role) {
    case Role::Text:
        return mixed(kText, dark);
    case Role::Secondary:
        return mixed(kSecondary, dark, 0.88, 0.82);
    case Role::Tertiary:
        return mixed(kSecondary, dark, 0.77, 0.68);
    case Role::Faint:
        return mixed(kSecondary, dark, 0.50, 0.42);
    case Role::Chosen:
        return mixed(kText, dark, 0.82, 0.82);
    case Role::Backdrop:
        return mixed(kWindow, dark);
    case Role::Sidebar:
        return mixed(kSidebar, dark);
    case Role::Canvas:
        return canvas(dark);
    case Role::Card:
        return card(dark);
    case Role::Soft:
        return mixed(kSoft, dark);
    case Role::Line:
        return mixed(kLine, dark);
    case Role::Hair:
        return mixed(kText, dark, 0.13, 0.12);
    case Role::Hair2:
        return mixed(kText, dark, 0.20, 0.20);
    case Role::Hover:
        return mixed(kBlackOrWhite, dark, 0.05, 0.06);
    case Role::Pressed:
        return mixed(kBlackOrWhite, dark, 0.09, 0.10);
    case Role::Track:
        return mixed({kText.light, kWhite.dark}, dark, 0.065, 0.075);
    case Role::Segment:
        return mixed({kWhite.light, 0x4A433E}, dark);
    case Role::Toast:
        return mixed({0x211C1A, 0x362F2B}, dark);
    case Role::ToastRing:
        return mixed(kWhite, dark, 0, 0.08);
    case Role::ToastText:
        return mixed(kText, true);
    case Role::ToastAction:
        return tint(Tone::Accent, true).ink;
    case Role::Shadow:
        return mixed(kBlack, dark, 0.16, 0.55);
    case Role::PageShadow:
        return mixed(kBlack, dark, 0.07, 0.35);
    case Role::SegmentShade:
        return mixed(kBlack, dark, 0.10, 0.10);
    case Role::OnSolid:
    case Role::Paper:
        return mixed(kWhite, dark);
    case Role::Expected:
        return QColor::fromRgb(0x8B837D);
    case Role::OnPaper:
        return QColor::fromRgb(0x1D1918);
    case Role::LastOfRole:
        break;
    }
    return {};
}

Tint tint(Tone::Value tone, bool dark)
{
    switch (tone) {
    case Tone::Accent:
        return {mixed(kAccent, dark), mixed({0xA53F21, 0xF27A54}, dark), mixed({0xC94D28, 0xBF5432}, dark)};
    case Tone::Reviewed:
        return {mixed(kReviewed, dark), mixed({0x246E45, 0x45B97A}, dark), mixed({0x2C8453, 0x318357}, dark)};
    case Tone::Issue:
        return {mixed(kIssue, dark), mixed({0xB32F19, 0xFF6E54}, dark), mixed({0xC8341C, 0xC3513C}, dark)};
    case Tone::LookAt:
        return {mixed(kLookAt, dark), mixed({0x8A5500, 0xE9A23B}, dark), mixed({0xA76600, 0x9B6C27}, dark)};
    case Tone::Neutral:
    case Tone::LastOfTone:
        break;
    }
    const QColor secondary = colour(Role::Secondary, dark);
    return {mixed(kSecondary, dark), secondary, secondary};
}

QColor laidOver(const QColor &top, const QColor &ground)
{
    const float a = top.alphaF();
    const auto channel = [a](float over, float under) { return over * a + under * (1 - a); };
    return QColor::fromRgbF(channel(top.redF(), ground.redF()), channel(top.greenF(), ground.greenF()),
                            channel(top.blueF(), ground.blueF()));
}

qreal contrast(const QColor &a, const QColor &b)
{
    const double ofA = luminance(a);
    const double ofB = luminance(b);
    return (std::max(ofA, ofB) + 0.05) / (std::min(ofA, ofB) + 0.05);
}
} // namespace vexal
