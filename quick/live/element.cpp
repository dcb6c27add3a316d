// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/element.h"

#include <QQmlProperty>
#include <QQuickItem>

#include <private/qqmldata_p.h>
#include <private/qqmlpropertycache_p.h>

int elementOf(const QQuickItem& item)
{
    const QQmlData* data = QQmlData::get(&item);
    if (!data || !data->propertyCache) // no member of its own
        return -1;
    const QVariant element = QQmlProperty(const_cast<QQuickItem*>(&item), QStringLiteral("element")).read();
    return element.isValid() ? element.toInt() : -1;
}

const QMetaObject& classOf(const QObject& object)
{
    const QQmlData* data = QQmlData::get(&object);
    return data && data->propertyCache ? *data->propertyCache->firstCppMetaObject() : *object.metaObject();
}
