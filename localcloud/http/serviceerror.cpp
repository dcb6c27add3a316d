// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/http/serviceerror.h"

#include "localcloud/base/json.h"

namespace localcloud {

Answer serviceError(int status, const std::string& reason, const std::string& message)
{
    Json detail = {{"message", message}, {"domain", "global"}, {"reason", reason}};
    if (status == 401)
        detail.update({{"locationType", "header"}, {"location", "Authorization"}});
    const Json error = {{"code", status}, {"message", message}, {"errors", Json::array({detail})}};
    Answer answer = jsonAnswer(status, Json{{"error", error}}.dump(2));
    if (status == 401)
        answer.headers.set("WWW-Authenticate", R"(Bearer realm="https://accounts.google.com/")");
    return answer;
}

void refuse(int status, const std::string& reason, const std::string& message)
{
    throw Refusal{serviceError(status, reason, message)};
}

} // namespace localcloud
