// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
#include "quick/tables/themetable.h"

#include <QQmlPropertyMap>

#include <cmath>
#include <memory>

namespace {

enum class Rule { Color, Copy, Darker, Number, CeilOfBase, FloorOfBase };

struct Variable
{
    const char* key;
    Rule rule;
    const char* source; // colour name, or the key that the value is taken from
    float number;       // the value, the factor of the base font size, or the amount of the darkening
};

constexpr Variable color(const char* key, const char* name)
{
    return {key, Rule::Color, name, 0};
}
constexpr Variable copy(const char* key, const char* source)
{
    return {key, Rule::Copy, source, 0};
}
constexpr Variable darker(const char* key, const char* source, float amount)
{
    return {key, Rule::Darker, source, amount};
}
constexpr Variable number(const char* key, float value)
{
    return {key, Rule::Number, nullptr, value};
}
constexpr Variable ceilOf(const char* key, float factor)
{
    return {key, Rule::CeilOfBase, nullptr, factor};
}
constexpr Variable floorOf(const char* key, float factor)
{
    return {key, Rule::FloorOfBase, nullptr, factor};
}

// In the order of insertion: a variable stands after the one it is derived from.
constexpr Variable variables[] = {
    color("gray-darker", "#1e252e"),
    color("gray-dark", "#333d4a"),
    color("gray-light", "#5e6978"),
    color("gray-lighter", "#eceff3"),
    color("brand-primary", "#428bca"),
    color("brand-success", "#5cb85c"),
    color("brand-info", "#5bc0de"),
    color("brand-warning", "#f0ad4e"),
    color("brand-danger", "#d9534f"),
    color("body-bg", "#fff"),
    copy("text-color", "gray-dark"),
    copy("link-color", "brand-primary"),
    darker("link-hover-color", "link-color", 15),
    number("font-size-base", 14),
    ceilOf("font-size-xlarge", 1.5f),
    ceilOf("font-size-large", 1.25f),
    ceilOf("font-size-small", 0.85f),
    ceilOf("font-size-xsmall", 0.85f),
    floorOf("font-size-h1", 2.6f),
    floorOf("font-size-h2", 2.15f),
    ceilOf("font-size-h3", 1.7f),
    ceilOf("font-size-h4", 1.25f),
    copy("font-size-h5", "font-size-base"),
    ceilOf("font-size-h6", 0.85f),
    number("padding-base-vertical", 6),
    number("padding-base-horizontal", 12),
    number("padding-large-vertical", 10),
    number("padding-large-horizontal", 16),
    number("padding-xlarge-vertical", 10),
    number("padding-xlarge-horizontal", 16),
    number("padding-small-vertical", 5),
    number("padding-small-horizontal", 10),
    number("padding-xsmall-vertical", 1),
    number("padding-xsmall-horizontal", 5),
    number("border-radius-base", 4),
    number("border-radius-large", 6),
    number("border-radius-xlarge", 8),
    number("border-radius-small", 3),
    number("border-radius-xsmall", 3),
    color("component-active-color", "#fff"),
    copy("component-active-bg", "brand-primary"),
    number("caret-width-base", 4),
    number("caret-width-small", 4),
    number("caret-width-xsmall", 4),
    number("caret-width-large", 5),
    number("caret-width-xlarge", 10),
    copy("btn-default-color", "gray-dark"),
    color("btn-default-bg", "#fff"),
    darker("btn-default-border", "btn-default-bg", 20),
    color("btn-primary-color", "#fff"),
    copy("btn-primary-bg", "brand-primary"),
    darker("btn-primary-border", "btn-primary-bg", 5),
    color("btn-success-color", "#fff"),
    copy("btn-success-bg", "brand-success"),
    darker("btn-success-border", "btn-success-bg", 5),
    color("btn-info-color", "#fff"),
    copy("btn-info-bg", "brand-info"),
    darker("btn-info-border", "btn-info-bg", 5),
    color("btn-warning-color", "#fff"),
    copy("btn-warning-bg", "brand-warning"),
    darker("btn-warning-border", "btn-warning-bg", 5),
    color("btn-danger-color", "#fff"),
    copy("btn-danger-bg", "brand-danger"),
    darker("btn-danger-border", "btn-danger-bg", 5),
    copy("btn-link-disabled-color", "gray-light"),
    color("input-bg", "#fff"),
    copy("input-bg-disabled", "gray-lighter"),
    copy("input-color", "gray-dark"),
    color("input-border", "#8791a0"),
    copy("input-border-radius", "border-radius-base"),
    color("input-border-focus", "#66afe9"),
    copy("input-color-placeholder", "gray-light"),
    copy("legend-color", "gray-dark"),
    color("legend-border-color", "#e5e5e5"),
    copy("input-group-addon-bg", "gray-lighter"),
    copy("input-group-addon-border-color", "input-border"),
    color("dropdown-bg", "#fff"),
    color("dropdown-border", "#c5ccd6"),
    color("dropdown-divider-bg", "#e5e5e5"),
    copy("dropdown-link-color", "gray-dark"),
    copy("dropdown-link-hover-color", "gray-darker"),
    color("dropdown-link-hover-bg", "#f5f5f5"),
    copy("dropdown-link-active-color", "component-active-color"),
    copy("dropdown-link-active-bg", "component-active-bg"),
    copy("dropdown-link-disabled-color", "gray-light"),
    copy("dropdown-header-color", "gray-light"),
    copy("dropdown-caret-color", "gray-darker"),
    number("thumbnail-padding", 4),
    copy("thumbnail-bg", "body-bg"),
    color("thumbnail-border", "#d5dae2"),
    copy("thumbnail-border-radius", "border-radius-base"),
};

static_assert(std::size(variables) == 91);

QVariant valueOf(const Variable& variable, const QQmlPropertyMap& theme)
{
    QVariant source = theme.value(QLatin1String(variable.source));
    const float base = theme.value(QStringLiteral("font-size-base")).toFloat();
    switch (variable.rule) {
    case Rule::Color:
        return QColor(QLatin1String(variable.source));
    case Rule::Copy:
        return source;
    case Rule::Darker:
        return darkened(source.value<QColor>(), variable.number);
    case Rule::Number:
        return int(variable.number);
    case Rule::CeilOfBase:
        return int(std::ceil(base * variable.number));
    case Rule::FloorOfBase:
        return int(std::floor(base * variable.number));
    }
    return {};
}

std::unique_ptr<QQmlPropertyMap> build()
{
    auto theme = std::make_unique<QQmlPropertyMap>();
    for (const Variable& variable : variables)
        theme->insert(QLatin1String(variable.key), valueOf(variable, *theme));
    return theme;
}

} // namespace

QQmlPropertyMap* themeTable()
{
    static const std::unique_ptr<QQmlPropertyMap> table = build();
    return table.get();
}

QColor darkened(const QColor& color, double amount)
{
    qreal hue = 0;
    qreal saturation = 0;
    qreal lightness = 0;
    qreal alpha = 1;
    color.getHslF(&hue, &saturation, &lightness, &alpha);
    return QColor::fromHslF(hue, saturation, std::max(0.0, lightness - amount / 100), alpha).toRgb();
}
