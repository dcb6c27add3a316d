// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/livedocument.h"

#include "qmldoc/editortext.h"
#include "qmldoc/endlessloading.h"
#include "qmldoc/faults.h"
#include "quick/limits.h"
#include "quick/live/element.h"
#include "quick/live/holdstill.h"
#include "quick/live/placement.h"

#include <QQmlEngine>

#include <algorithm>

namespace {

QVariantMap faultOf(const QQmlError& error, const QString& file)
{
    return {{"line", qMax(0, error.line())},
            {"column", qMax(0, error.column())},
            {"message", error.description()},
            {"file", file}};
}

// What the engine said of `text`, in lines of the `source` that it was made of.
QVariantList faultsOf(const QString& source, const QString& text, const QUrl& url,
                      const QList<QQmlError>& errors)
{
    QVariantList faults;
    for (QQmlError error : errors) {
        const bool isOther = !error.url().isEmpty() && error.url() != url;
        if (!isOther && error.line() > 0) {
            const TextPlace place = sourcePlace(source, text, {error.line(), error.column()});
            error.setLine(place.line);
            error.setColumn(place.column);
        }
        faults.append(faultOf(error, isOther ? error.url().toString() : QString()));
    }
    return faults;
}

// How often each of the numbers stands below `item`.
void countElements(const QQuickItem& item, QHash<int, int>& counts)
{
    const auto count = counts.find(elementOf(item));
    if (count != counts.end())
        ++*count;
    for (const QQuickItem* child : item.childItems())
        countElements(*child, counts);
}

} // namespace

void LiveDocument::classBegin()
{
    m_scene = std::make_unique<LiveScene>(*qmlEngine(this));
    m_restTimer.setInterval(limits::restPeriod);
    connect(&m_restTimer, &QTimer::timeout, this, [this] {
        ++m_rests;
        rest();
    });
}

bool LiveDocument::load(const QString& source, const QString& folder, QQuickItem* parent)
{
    const Outline outline(source);
    m_url = QUrl::fromLocalFile(folder + QLatin1Char('/'));
    if (!isWhole(outline))
        return false;
    const QString text = thinnedText(source, outline, 0);
    const bool isLoaded = m_scene->load(text, m_url, *parent);
    takeFaults(faultsOf(source, text, m_url, m_scene->errors()));
    if (isLoaded) {
        beginRest();
        emit rootChanged();
    }
    return isLoaded;
}

QQuickItem* LiveDocument::insert(const QString& source, int firstElement, QQuickItem* parent)
{
    const Outline outline(source);
    if (!root() || !parent || !isWhole(outline))
        return nullptr;
    QQuickItem* item = m_scene->insert(thinnedText(source, outline, firstElement), *parent);
    takeErrors(m_scene->errors());
    beginRest();
    return item;
}

bool LiveDocument::canMake(const QString& source)
{
    takeErrors(m_scene->check(source, m_url));
    return m_faults.isEmpty();
}

void LiveDocument::stack(QQuickItem* item, QQuickItem* before)
{
    const QQuickItem* parent = item ? item->parentItem() : nullptr;
    if (!parent || (before && before->parentItem() != parent))
        return;
    if (before)
        item->stackBefore(before);
    else if (parent->childItems().constLast() != item)
        item->stackAfter(parent->childItems().constLast());
}

void LiveDocument::remove(QQuickItem* item)
{
    if (item && item != root())
        m_scene->remove(*item);
}

void LiveDocument::clear()
{
    m_scene->clear();
    m_restTimer.stop();
    emit rootChanged();
}

bool LiveDocument::couldHold(const QString& imports, const QString& head, const QString& member)
{
    const QString text = imports + QLatin1Char('\n') + head + QStringLiteral(" {\n");
    const int firstLine = int(text.count(QLatin1Char('\n'))) + 1;
    QList<QQmlError> errors = m_scene->check(text + member + QStringLiteral("\n}\n"), m_url);
    // What is wrong above the member is not its fault, as when its type stands in the document itself.
    errors.erase(std::remove_if(errors.begin(), errors.end(),
                                [firstLine](const QQmlError& error) { return error.line() < firstLine; }),
                 errors.end());
    takeErrors(errors);
    return errors.isEmpty();
}

bool LiveDocument::assign(QQuickItem* item, const QString& name, const QString& code)
{
    const bool isDone = item && m_scene->assign(*item, name, code);
    takeErrors(m_scene->errors());
    rest();
    return isDone;
}

bool LiveDocument::bind(QQuickItem* item, const QString& name, const QString& code)
{
    const bool isDone = item && m_scene->bind(*item, name, code);
    takeErrors(m_scene->errors());
    rest();
    return isDone;
}

bool LiveDocument::isRepeated(const QVariantList& elements) const
{
    QHash<int, int> counts;
    for (const QVariant& element : elements)
        counts[element.toInt()] = 0;
    if (root())
        countElements(*root(), counts);
    return std::any_of(counts.cbegin(), counts.cend(), [](int count) { return count > 1; });
}

QVariantMap LiveDocument::placement(QQuickItem* item) const
{
    const Placement placement = item ? placementOf(*item) : Placement();
    return {{"by", placement.by},
            {"x", placement.x},
            {"y", placement.y},
            {"width", placement.width},
            {"height", placement.height}};
}

void LiveDocument::beginRest()
{
    m_rests = 0;
    rest();
    m_restTimer.start();
}

void LiveDocument::rest()
{
    if (root())
        holdStill(*root(), m_rests < 2 ? Particles::Flow : Particles::Hold);
}

// Whether the document can be handed to the engine at all; some of what it cannot bear brings it down.
bool LiveDocument::isWhole(const Outline& outline)
{
    QVariantList faults;
    const QString file = m_url.toLocalFile() + QLatin1String("main.qml");
    for (const Fault& fault : faultsInSource(outline) + endlessLoading(outline, file))
        faults.append(QVariantMap{{"line", fault.place.line},
                                  {"column", fault.place.column},
                                  {"message", fault.message},
                                  {"file", QString()}});
    takeFaults(faults);
    return m_faults.isEmpty();
}

void LiveDocument::takeErrors(const QList<QQmlError>& errors)
{
    QVariantList faults;
    for (const QQmlError& error : errors)
        faults.append(faultOf(error, QString()));
    takeFaults(faults);
}

void LiveDocument::takeFaults(const QVariantList& faults)
{
    m_faults = faults;
    emit faultsChanged();
}
