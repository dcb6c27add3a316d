// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/livescene.h"

#include "quick/limits.h"
#include "quick/live/holdstill.h"
#include "quick/live/scriptwatch.h"
#include "quick/live/settling.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQmlListReference>
#include <QQmlProperty>

namespace {

QQmlError error(const QString& description)
{
    QQmlError error;
    error.setDescription(description);
    return error;
}

std::chrono::milliseconds deadlineFor(const QString& text)
{
    return limits::loadDeadline + limits::loadDeadlinePerKilobyte * (text.size() / 1024);
}

// Attached properties are reached by their type's name; others through `this`, as an id may have their name.
QString target(const QString& name)
{
    return name.at(0).isUpper() ? name : QStringLiteral("this.") + name;
}

// Appends `object` to the default property of `parent`, as a document that declares it inside would.
bool adopt(QObject& parent, QObject& object)
{
    const QMetaObject* type = parent.metaObject();
    const int info = type->indexOfClassInfo("DefaultProperty");
    if (info < 0)
        return false;
    QQmlListReference children(&parent, type->classInfo(info).value());
    return children.canAppend() && children.append(&object);
}

} // namespace

LiveScene::LiveScene(QQmlEngine& engine)
    : m_engine(engine)
{
}

LiveScene::~LiveScene()
{
    m_context.reset();
    delete m_root;
}

bool LiveScene::load(const QString& text, const QUrl& url, QQuickItem& parent)
{
    auto context = std::make_unique<QQmlContext>(m_engine.rootContext());
    QQuickItem* root = make(text, url, context.get(), parent);
    if (!root)
        return false;
    clear();
    m_context = std::move(context);
    m_url = url;
    m_root = root;
    m_root->setState(QStringLiteral("editing")); // from here no binding of the state is cut
    return true;
}

QQuickItem* LiveScene::insert(const QString& text, QQuickItem& parent)
{
    QQuickItem* item = make(text, m_url, qmlContext(m_root), parent);
    if (!item || adopt(parent, *item))
        return item;
    m_errors = {error(QStringLiteral("no objects can be put inside"))};
    delete item;
    return nullptr;
}

void LiveScene::remove(QQuickItem& item)
{
    item.setParentItem(&m_aside);
}

void LiveScene::clear()
{
    if (!m_root)
        return;
    holdStill(*m_root, Particles::Hold); // particles would miss the context
    m_context.reset();                   // with it, bindings would miss the parents that go before them
    m_root->setParentItem(nullptr);
    m_root->deleteLater(); // it may be one of its own handlers that asks
    m_root.clear();
}

QQuickItem* LiveScene::make(const QString& text, const QUrl& url, QQmlContext* context, QQuickItem& parent)
{
    QQmlComponent component(&m_engine);
    component.setData(text.toUtf8(), url);
    m_errors = component.errors();
    if (component.isError())
        return nullptr;
    const ScriptWatch watch(m_engine, deadlineFor(text));
    std::unique_ptr<QObject> object(component.beginCreate(context));
    m_errors = component.errors();
    auto* item = qobject_cast<QQuickItem*>(object.get());
    if (item) {
        item->setParent(&parent);
        item->setParentItem(&parent);
        QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
    } else if (object) {
        m_errors = {error(QStringLiteral("its root is no visual item"))};
        object.reset(); // before it is complete: a window never shows
    }
    component.completeCreate();
    if (watch.hasStruck())
        m_errors = {error(QStringLiteral("a script that runs when it is loaded does not end"))};
    if (!m_errors.isEmpty() || !item)
        return nullptr;
    const bool isPart = m_root && (m_root == &parent || m_root->isAncestorOf(&parent));
    if (!comesToRest(isPart ? *m_root : *item))
        return nullptr;
    return qobject_cast<QQuickItem*>(object.release());
}

QList<QQmlError> LiveScene::check(const QString& text, const QUrl& url) const
{
    QQmlComponent component(&m_engine);
    component.setData(text.toUtf8(), url);
    return component.errors();
}

bool LiveScene::assign(QQuickItem& item, const QString& name, const QString& code)
{
    return set(item, name, QStringLiteral("(") + code + QStringLiteral("\n)"));
}

bool LiveScene::bind(QQuickItem& item, const QString& name, const QString& code)
{
    return assign(item, name, code) &&
           set(item, name,
               QStringLiteral("Qt.binding(function() { return (") + code + QStringLiteral("\n); })"));
}

// Gives the property the value of `code`, or what it had before when with that the layout would not end.
bool LiveScene::set(QQuickItem& item, const QString& name, const QString& code)
{
    const QQmlProperty property(&item, name, qmlContext(&item));
    const QVariant before = property.read();
    evaluate(item, target(name) + QStringLiteral(" = ") + code);
    if (!m_errors.isEmpty() || comesToRest(*m_root))
        return m_errors.isEmpty();
    property.write(before);
    return false;
}

bool LiveScene::comesToRest(const QQuickItem& item)
{
    if (settleLayouts(item))
        return true;
    m_errors = {error(QStringLiteral("sizes depend on each other and never come to rest"))};
    return false;
}

QVariant LiveScene::evaluate(QQuickItem& item, const QString& code)
{
    QQmlExpression expression(qmlContext(&item), &item, code);
    const ScriptWatch watch(m_engine, limits::expressionDeadline);
    const QVariant value = expression.evaluate();
    m_errors.clear();
    if (watch.hasStruck())
        m_errors.append(error(QStringLiteral("the script does not end")));
    else if (expression.hasError())
        m_errors.append(expression.error());
    return m_errors.isEmpty() ? value : QVariant();
}
