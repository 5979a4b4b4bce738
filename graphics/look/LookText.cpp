// SPDX-License-Identifier: MIT
#include "graphics/look/LookText.h"

#include "graphics/look/LookSection.h"

#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <string_view>

namespace grisal::graphics
{

namespace
{

constexpr double textVersion = 1;
constexpr qsizetype fewestPoints = 2;
constexpr qsizetype mostPoints = 100; // more than fit into a panel, where they stay 0.02 apart
constexpr NumberRange widths{0, 1};
constexpr NumberRange heights{-1, 2}; // the mouse can put a point slightly outside of the square

/// A decimal number with as few digits as `readsBack` accepts.
template <typename ReadsBack>
double shortest(double value, ReadsBack readsBack)
{
    for (int digits = 1; digits < std::numeric_limits<double>::max_digits10; ++digits) {
        const double candidate = QByteArray::number(value, 'g', digits).toDouble();
        if (readsBack(candidate)) {
            return candidate;
        }
    }
    return value;
}

double numberOf(float value)
{
    return shortest(value, [=](double number) { return static_cast<float>(number) == value; });
}

// The text measures the height of a point from the bottom.
float fromTop(double height)
{
    return static_cast<float>(1.0 - height);
}

double heightOf(float y)
{
    return shortest(1.0 - double{y}, [=](double height) { return fromTop(height) == y; });
}

// The keys and texts of more than one place. Those of parameters are the names in the declarations.
const QLatin1String versionKey("version");
const QLatin1String mixerKey("mixer");
const QLatin1String curveKey("curve");
const QLatin1String splitToneKey("splitTone");
const QLatin1String grainKey("grain");
const QLatin1String vignetteKey("vignette");
const QLatin1String onKey("on");
const QLatin1String kindKey("kind");
const QLatin1String pointsKey("points");
const QLatin1String smooth("smooth");
const QLatin1String straight("straight");
constexpr std::array mixerNumbers{"weights"};
constexpr std::array splitToneNumbers{"weight", "highlights", "shadows"};
constexpr std::array grainNumbers{"radius"};
constexpr std::array vignetteNumbers{"x", "y", "radius", "strength"};

/// The declared parameter of a filter, with its range.
template <typename Parameters>
const ParameterDeclaration<Parameters> &declared(std::string_view name)
{
    const auto &all = Parameters::declaration().parameters;
    return *std::find_if(all.begin(), all.end(), [&](const auto &parameter) { return name == parameter.name; });
}

template <typename Parameters>
void write(QJsonObject &section, Parameters parameters, std::span<const char *const> names)
{
    for (const char *name : names) {
        QJsonArray numbers;
        for (const float value : declared<Parameters>(name).values(parameters)) {
            numbers << numberOf(value);
        }
        section[QLatin1String(name)] = numbers.size() == 1 ? numbers.first() : QJsonValue(numbers);
    }
}

template <typename Parameters>
void read(LookSection &section, Parameters &parameters, std::span<const char *const> names)
{
    for (const char *name : names) {
        const auto &parameter = declared<Parameters>(name);
        const NumberRange range{numberOf(parameter.lowest), numberOf(parameter.highest)};
        section.readNumbers(QLatin1String(name), parameter.values(parameters), range);
    }
}

void write(QJsonObject &section, const Curve &curve)
{
    QJsonArray points;
    for (int i = 0; i < curve.points.count(); ++i) {
        points << QJsonArray{numberOf(curve.points.xs[i]), heightOf(curve.points.ys[i])};
    }
    section[kindKey] = curve.kind == CurveKind::Smooth ? smooth : straight;
    section[pointsKey] = points;
}

CurvePoints pointsIn(const QJsonArray &list, const QString &path)
{
    CurvePoints points{{}, {}};
    for (qsizetype i = 0; i < list.size(); ++i) {
        const QString entry = QStringLiteral("%1[%2]").arg(path).arg(i);
        const QList<double> point = numbersIn(list[i], entry, {widths, heights});
        const auto x = static_cast<float>(point[0]);
        if (i > 0 && x <= points.xs.last()) {
            throw LookError(entry + QStringLiteral("[0]"), point[0], QStringLiteral("a number above the one before"));
        }
        points.xs << x;
        points.ys << fromTop(point[1]);
    }
    return points;
}

void read(LookSection &section, Curve &curve)
{
    if (const auto kind = section.choice(kindKey, {smooth, straight})) {
        curve.kind = *kind == smooth ? CurveKind::Smooth : CurveKind::Straight;
    }
    if (const auto list = section.list(pointsKey, fewestPoints, mostPoints)) {
        curve.points = pointsIn(*list, section.path(pointsKey));
    }
}

// A filter whose section does not contain the switch is on; one without section is off.
bool isOn(LookSection &section)
{
    return section.flag(onKey).value_or(true);
}

Look lookIn(LookSection text)
{
    Look look;
    if (const auto version = text.number(versionKey, {textVersion, textVersion}); !version) {
        throw LookError(QStringLiteral("\"version\" is missing; it is 1"));
    }
    if (auto mixer = text.section(mixerKey)) {
        read(*mixer, look.mixer, mixerNumbers);
        mixer->expectNoOtherKeys();
    }
    if (auto curve = text.section(curveKey)) {
        look.enabled.get<CurveFilter>() = isOn(*curve);
        read(*curve, look.toneCurve);
        curve->expectNoOtherKeys();
    }
    if (auto splitTone = text.section(splitToneKey)) {
        look.enabled.get<HalfToneFilter>() = isOn(*splitTone);
        read(*splitTone, look.splitTone, splitToneNumbers);
        splitTone->expectNoOtherKeys();
    }
    if (auto grain = text.section(grainKey)) {
        GrainFilterParameters parameters;
        look.enabled.get<GrainFilter>() = isOn(*grain);
        read(*grain, look.grainStrength);
        read(*grain, parameters, grainNumbers);
        look.grainRadius = parameters.radius;
        grain->expectNoOtherKeys();
    }
    if (auto vignette = text.section(vignetteKey)) {
        look.enabled.get<VignetteFilter>() = isOn(*vignette);
        read(*vignette, look.vignette, vignetteNumbers);
        vignette->expectNoOtherKeys();
    }
    text.expectNoOtherKeys();
    return look;
}

QJsonObject objectOf(const Look &look)
{
    QJsonObject mixer;
    write(mixer, look.mixer, mixerNumbers);
    QJsonObject curve{{onKey, look.enabled.get<CurveFilter>()}};
    write(curve, look.toneCurve);
    QJsonObject splitTone{{onKey, look.enabled.get<HalfToneFilter>()}};
    write(splitTone, look.splitTone, splitToneNumbers);
    QJsonObject grain{{onKey, look.enabled.get<GrainFilter>()}};
    write(grain, look.grainStrength);
    write(grain, GrainFilterParameters{{}, look.grainRadius}, grainNumbers);
    QJsonObject vignette{{onKey, look.enabled.get<VignetteFilter>()}};
    write(vignette, look.vignette, vignetteNumbers);
    return {{versionKey, textVersion}, {mixerKey, mixer}, {curveKey, curve},
            {splitToneKey, splitTone}, {grainKey, grain}, {vignetteKey, vignette}};
}

} // namespace

QByteArray lookText(const Look &look, LookFormat format)
{
    return QJsonDocument(objectOf(look))
        .toJson(format == LookFormat::Compact ? QJsonDocument::Compact : QJsonDocument::Indented);
}

std::optional<Look> parseLook(const QByteArray &text, QString &problem)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        problem = QStringLiteral("it is not valid JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset);
        return std::nullopt;
    }
    if (!document.isObject()) {
        problem = QStringLiteral("it is a list; a look is an object");
        return std::nullopt;
    }
    try {
        return lookIn(LookSection({}, document.object()));
    } catch (const LookError &found) {
        problem = QString::fromUtf8(found.what());
        return std::nullopt;
    }
}

} // namespace grisal::graphics
