// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/event.h"
#include "localcloud/database/location.h"
#include "localcloud/database/pushids.h"
#include "localcloud/database/streams.h"
#include "localcloud/database/treestore.h"
#include "localcloud/database/value.h"
#include "localcloud/limits.h"

#include <QTest>

#include <array>
#include <random>
#include <sstream>

using namespace localcloud;

/// The realtime database's tree, without its sockets.
class TestDatabase : public QObject
{
    Q_OBJECT

private slots:
    void locations();
    void values();
    void refusedValues();
    void events();
    void treeAgainstModel();
    void listenersFollow();
    void keysOnly();
    void streamsInTime();
    void pushIds();
};

namespace {

struct Sink : EventSink
{
    std::string text;
    bool ended = false;
    void send(std::shared_ptr<const std::string> event) override { text += *event; }
    void end() override { ended = true; }
    void mute() override {}
    std::string taken() { return std::exchange(text, {}); }
};

std::string location(const std::string& path)
{
    return locationOf(path).value_or("none");
}

Json at(const Json& model, const std::string& place)
{
    return partOf(model, place);
}

// What a put does, in the simplest way: also takes away what becomes empty.
void putInto(Json& model, std::vector<std::string_view> keys, const Json& value)
{
    if (keys.empty()) {
        model = value;
        return;
    }
    if (!model.is_object() && value.is_null())
        return;
    if (!model.is_object())
        model = Json::object();
    const std::string key(keys.front());
    keys.erase(keys.begin());
    putInto(model[key], keys, value);
    if (model[key].is_null())
        model.erase(key);
    if (model.empty())
        model = nullptr;
}

// Does to a client's copy what the events tell it to.
void follow(Json& copy, const std::string& events)
{
    std::istringstream lines(events);
    std::string name, data, empty;
    while (std::getline(lines, name) && std::getline(lines, data) && std::getline(lines, empty)) {
        const Json json = Json::parse(data.substr(6));
        const std::string path = json.at("path");
        if (name == "event: put") {
            putInto(copy, keysOf(path), normalized(json.at("data"), 0, 0));
            continue;
        }
        for (const auto& [key, value] : json.at("data").items()) {
            const std::string place = path + "/" + key;
            putInto(copy, keysOf(place), normalized(value, 0, 0));
        }
    }
}

struct RandomTree
{
    std::mt19937 random{7};
    std::string place(std::size_t depth)
    {
        std::string result;
        for (std::size_t count = random() % (depth + 1); count > 0; --count)
            result += std::string("/") + std::array{"a", "b", "a!", "a0", "ä", "0", "1"}[random() % 7];
        return result;
    }
    Json value(int depth)
    {
        if (depth == 0 || random() % 3 == 0)
            return std::array<Json, 5>{nullptr, true, 3, "text", 1.5}[random() % 5];
        Json object = Json::object();
        for (unsigned count = random() % 4; count > 0; --count)
            object[place(0) + std::array{"a", "b", "a!", "0", "1"}[random() % 5]] = value(depth - 1);
        return object;
    }
};

} // namespace

void TestDatabase::locations()
{
    QCOMPARE(location("/.json"), std::string());
    QCOMPARE(location("/Users/ab%40x//p%201.json"), std::string("/Users/ab@x/p 1"));
    QCOMPARE(location("/a%2Fb/.json"), std::string("/a/b"));
    for (const char* path : {"/a", "/a.b.json", "/a$.json", "/%23.json", "/[0].json", "/%01.json",
                             "/%7F.json", "/%FF.json", "/%.json"})
        QVERIFY2(!locationOf(path), path);
    QVERIFY(locationOf("/" + std::string(768, 'k') + ".json") &&
            !locationOf("/" + std::string(769, 'k') + ".json"));
    QVERIFY(isWithin("/a/b", "/a") && isWithin("/a", "/a") && isWithin("/a", "") && !isWithin("/ab", "/a"));
}

void TestDatabase::values()
{
    const std::pair<const char*, const char*> rows[] = {
        {"null", "null"},
        {R"({"a":{"b":null},"c":[],"d":{}})", "null"},
        {R"([1,2,null,4])", "[1,2,null,4]"},
        {R"({"0":"x","2":"y"})", R"(["x",null,"y"])"},
        {R"({"0":"x","9":"y"})", R"({"0":"x","9":"y"})"},
        {R"({"0":"x","01":"y"})", R"({"0":"x","01":"y"})"},
        {R"({"1":"x","2":{"1":1}})", R"([null,"x",{"1":1}])"},
        {R"({"t":{".sv":"timestamp"}})", R"({"t":42})"},
        {R"(9007199254740993)", "9007199254740993"},
        {R"({"ü":"\u0000"})", R"({"ü":"\u0000"})"},
    };
    for (const auto& [sent, read] : rows) {
        Sqlite sqlite(":memory:");
        TreeStore tree(sqlite);
        tree.write({{"/x", normalized(Json::parse(sent), 1, 42)}});
        const std::string found = presented(tree.read("/x")).dump();
        QVERIFY2(found == read, found.c_str());
    }
}

void TestDatabase::refusedValues()
{
    Json deep = 1;
    for (std::size_t i = 0; i < limits::treeDepth; ++i)
        deep = Json{{"d", deep}};
    QCOMPARE(leavesOf(normalized(deep, 0, 0), "").size(), std::size_t(1));
    QVERIFY_EXCEPTION_THROWN(normalized(deep, 1, 0), DataFault);
    for (const char* text : {R"({"a.b":1})", R"({"":1})", R"({"a/b":1})", R"({"x":{"$":null}})",
                             R"({".sv":"other"})", R"({".sv":"timestamp","a":1})", R"({".value":1})"})
        QVERIFY_EXCEPTION_THROWN(normalized(Json::parse(text), 0, 0), DataFault);
}

void TestDatabase::events()
{
    using Kind = Change::Kind;
    const auto put = [](const char* path, const char* data) {
        return std::string("event: put\ndata: {\"path\":\"") + path + "\",\"data\":" + data + "}\n\n";
    };
    struct Row
    {
        Kind kind;
        const char* changed;
        const char* value;
        const char* listener;
        std::string events;
    };
    const Row rows[] = {
        {Kind::Put, "/a/b", "1", "/a/b", put("/", "1")},
        {Kind::Put, "/a/b", "1", "/a", put("/b", "1")},
        {Kind::Put, "/a/b", "1", "", put("/a/b", "1")},
        {Kind::Put, "/a", R"({"b":{"c":5}})", "/a/b/c", put("/", "5")},
        {Kind::Put, "/a", R"({"b":1})", "/a/b/c", put("/", "null")},
        {Kind::Put, "/a", "null", "/a/b", put("/", "null")},
        {Kind::Put, "/a", "1", "/ab", ""},
        {Kind::Put, "/ab", "1", "/a", ""},
        {Kind::Patch, "/a", R"({"b":1,"c":null})", "",
         "event: patch\ndata: {\"path\":\"/a\",\"data\":{\"b\":1,\"c\":null}}\n\n"},
        {Kind::Patch, "/a", R"({"0":1,"1":2})", "/a",
         "event: patch\ndata: {\"path\":\"/\",\"data\":{\"0\":1,\"1\":2}}\n\n"},
        {Kind::Patch, "/a", R"({"b":1,"c":2})", "/a/b", put("/", "1")},
        {Kind::Patch, "/a", R"({"b":1})", "/a/c", ""},
        {Kind::Patch, "/a", R"({"b/c":1,"b/d":2})", "/a/b", put("/c", "1") + put("/d", "2")},
        {Kind::Patch, "/a", R"({"b/c":{"x":3}})", "/a/b/c/x", put("/", "3")},
    };
    for (const Row& row : rows)
        QCOMPARE(eventsOf({row.kind, row.changed, Json::parse(row.value)}, row.listener), row.events);
}

void TestDatabase::treeAgainstModel()
{
    Sqlite sqlite(":memory:");
    TreeStore tree(sqlite);
    RandomTree trees;
    Json model;
    for (int i = 0; i < 3000; ++i) {
        const std::string place = trees.place(4);
        const Json value = normalized(trees.value(3), 0, 0);
        tree.write({{place, value}});
        putInto(model, keysOf(place), value);
        const std::string looked = trees.place(4);
        QCOMPARE(tree.read(looked).dump(), at(model, looked).dump());
        Json keys = at(model, looked);
        if (keys.is_object())
            std::fill(keys.begin(), keys.end(), true);
        QCOMPARE(tree.readKeys(looked).dump(), keys.dump());
    }
    QCOMPARE(TreeStore(sqlite).read("").dump(), model.dump());
}

// Clients that only ever hear events end up with what is in the tree.
void TestDatabase::listenersFollow()
{
    Sqlite sqlite(":memory:");
    TreeStore tree(sqlite);
    Streams streams;
    RandomTree trees;
    const std::string places[] = {"", "/a", "/a/b", "/a!", "/b/a/0", "/0", "/a"};
    std::vector<std::unique_ptr<Sink>> sinks;
    std::vector<std::unique_ptr<Subscription>> subscriptions;
    std::vector<Json> copies(std::size(places));
    for (const std::string& place : places) {
        sinks.push_back(std::make_unique<Sink>());
        subscriptions.push_back(streams.open(place, tree.read(place), {}, *sinks.back(), 0));
    }
    for (int i = 0; i < 3000; ++i) {
        const std::string place = trees.place(3);
        Json value = normalized(trees.value(3), 0, 0);
        if (value.is_object() && trees.random() % 2 == 0) { // a patch
            std::vector<std::pair<std::string, Json>> writes;
            for (const auto& [key, member] : value.items())
                writes.emplace_back(childOf(place, key), member);
            tree.write(writes);
            streams.publish({Change::Kind::Patch, place, value});
        } else {
            tree.write({{place, value}});
            streams.publish({Change::Kind::Put, place, value});
        }
        for (std::size_t k = 0; k < copies.size(); ++k) {
            follow(copies[k], sinks[k]->taken());
            QCOMPARE(copies[k].dump(), tree.read(places[k]).dump());
        }
    }
}

void TestDatabase::keysOnly()
{
    Sqlite sqlite(":memory:");
    TreeStore tree(sqlite);
    QVERIFY(tree.readKeys("/p").is_null());
    tree.write({{"/p/ann", {{"x", {{"y", 1}}}}}, {"/p/bob", true}, {"/p/bob!", 2}, {"/q", 3}});
    QCOMPARE(tree.readKeys("/p").dump(), std::string(R"({"ann":true,"bob":true,"bob!":true})"));
    QCOMPARE(tree.readKeys("/q").dump(), std::string("3"));
}

void TestDatabase::streamsInTime()
{
    const std::string alive = "event: keep-alive\ndata: null\n\n";
    const std::string revoked = "event: auth_revoked\ndata: \"credential is no longer valid\"\n\n";
    Streams streams;
    Sink forEver, forAMinute;
    auto first = streams.open("/a", 1, {}, forEver, 0);
    const auto second = streams.open("/a", 1, 60'000, forAMinute, 0);
    QCOMPARE(forEver.taken(), std::string("event: put\ndata: {\"path\":\"/\",\"data\":1}\n\n"));
    streams.tick(29'999);
    QCOMPARE(forEver.taken(), std::string());
    streams.tick(30'000);
    streams.tick(31'000);
    QCOMPARE(forEver.taken(), alive);
    forAMinute.taken();
    streams.tick(60'500);
    QCOMPARE(forEver.taken(), alive);
    QCOMPARE(forAMinute.taken(), revoked);
    QVERIFY(forAMinute.ended && !forEver.ended);
    first.reset();
    QCOMPARE(streams.count(), std::size_t(1));
    streams.publish({Change::Kind::Put, "/a", 2});
    QCOMPARE(forEver.taken(), std::string());
}

void TestDatabase::pushIds()
{
    PushIds ids;
    std::string last;
    for (UnixMs now : {5, 5, 5, 5, 4, 6, 7, 7}) { // also when the clock goes back
        const std::string id = ids.next(now);
        QCOMPARE(id.size(), std::size_t(20));
        QVERIFY2(id > last, (last + " " + id).c_str());
        QVERIFY(isKey(id));
        last = id;
    }
}

QTEST_APPLESS_MAIN(TestDatabase)
#include "tst_localcloud_database.moc"
