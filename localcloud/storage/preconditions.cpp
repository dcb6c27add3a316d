// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/preconditions.h"

#include "localcloud/base/encoding.h"
#include "localcloud/http/serviceerror.h"

namespace localcloud {

namespace {

std::optional<std::int64_t> readNumber(const Target& target, const std::string& name)
{
    if (!target.has(name))
        return {};
    const std::optional<std::int64_t> number = parseNumber(target.value(name));
    if (!number)
        refuse(400, "invalid", "Invalid value for " + name + ".");
    return number;
}

[[noreturn]] void refuseCondition()
{
    refuse(412, "conditionNotMet", "At least one of the pre-conditions you specified did not hold.");
}

} // namespace

Preconditions Preconditions::parse(const Target& target, const std::string& prefix)
{
    return {readNumber(target, prefix + "GenerationMatch"), readNumber(target, prefix + "GenerationNotMatch"),
            readNumber(target, prefix + "MetagenerationMatch"),
            readNumber(target, prefix + "MetagenerationNotMatch")};
}

void Preconditions::checkForReading(const Object* object) const
{
    if (!matches(object))
        refuseCondition();
    if (!differs(object))
        throw Refusal{Answer{304, {}, {}}};
}

void Preconditions::checkForWriting(const Object* object) const
{
    if (!matches(object) || !differs(object))
        refuseCondition();
}

bool Preconditions::matches(const Object* object) const
{
    return (!generation || *generation == (object ? object->generation : 0)) &&
           (!metageneration || (object && *metageneration == object->metageneration));
}

bool Preconditions::differs(const Object* object) const
{
    return (!notGeneration || *notGeneration != (object ? object->generation : 0)) &&
           (!notMetageneration || !object || *notMetageneration != object->metageneration);
}

} // namespace localcloud
