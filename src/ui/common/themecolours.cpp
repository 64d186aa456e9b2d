// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/themecolours.h"

#include <algorithm>

namespace {
// Lightness limits on a dark palette: backgrounds no lighter, texts no darker than these.
constexpr double DarkBackgroundLightness = 0.24, LightTextLightness = 0.80;
constexpr int MidLightness = 128;
} // namespace

bool DarkPalette(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < MidLightness;
}

QColor ThemedBackground(const QColor& light, const QPalette& palette)
{
    if (!DarkPalette(palette))
        return light;
    const QColor hsl = light.toHsl();
    return QColor::fromHslF(std::max(0.0F, hsl.hslHueF()), hsl.hslSaturationF(),
                            std::min(float(DarkBackgroundLightness), hsl.lightnessF() / 2));
}

QColor ThemedText(const QColor& light, const QPalette& palette)
{
    if (!DarkPalette(palette))
        return light;
    if (light.lightness() == 0)
        return palette.color(QPalette::Text);
    const QColor hsl = light.toHsl();
    return QColor::fromHslF(std::max(0.0F, hsl.hslHueF()), hsl.hslSaturationF(),
                            std::max(float(LightTextLightness), hsl.lightnessF()));
}
