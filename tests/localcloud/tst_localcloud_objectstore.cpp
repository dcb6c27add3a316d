// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/objectstore.h"
#include "localcloud/storage/uploadsessions.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <random>
#include <set>

using namespace localcloud;

/// Objects on a real disk, without their sockets.
class TestObjectStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void listingAgainstModel();
    void namesStayOutOfTheFileSystem();
    void preconditions();
    void whatNoRowSpeaksOfGoes();

private:
    Object put(const std::string& name, const std::string& content, const Preconditions& conditions = {});
    QStringList files(const QString& folder) const
    {
        return QDir(m_dir->filePath(folder)).entryList(QDir::Files);
    }
    void open();

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Sqlite> m_sqlite;
    std::unique_ptr<ObjectStore> m_objects;
    std::unique_ptr<UploadSessions> m_uploads;
};

void TestObjectStore::init()
{
    m_uploads.reset();
    m_objects.reset();
    m_sqlite.reset();
    m_dir = std::make_unique<QTemporaryDir>();
    QDir(m_dir->path()).mkdir("objects");
    QDir(m_dir->path()).mkdir("uploads");
    open();
}

void TestObjectStore::open()
{
    m_uploads.reset();
    m_objects.reset();
    m_sqlite.reset(); // lets go of the file before it is opened again
    m_sqlite = std::make_unique<Sqlite>(m_dir->filePath("db").toStdString());
    m_objects = std::make_unique<ObjectStore>(*m_sqlite, m_dir->filePath("objects").toStdString());
    m_uploads =
        std::make_unique<UploadSessions>(*m_sqlite, *m_objects, m_dir->filePath("uploads").toStdString());
}

Object TestObjectStore::put(const std::string& name, const std::string& content,
                            const Preconditions& conditions)
{
    UploadFile file = m_uploads->newFile();
    file.append(content);
    NewObject object;
    object.name = name;
    object.conditions = conditions;
    return m_objects->commit(object, file);
}

// Every page of every kind of listing, against the plain reading of what a listing is.
void TestObjectStore::listingAgainstModel()
{
    std::mt19937 random(3);
    std::set<std::string> names;
    while (names.size() < 150) {
        std::string name;
        for (unsigned parts = 1 + random() % 4; parts > 0; --parts)
            name += std::array{"a", "b", "a/", "b/", "/", "ä", "a!", "a0"}[random() % 8];
        if (names.insert(name).second)
            put(name, name);
    }
    for (int round = 0; round < 400; ++round) {
        ListQuery query;
        query.prefix = std::array{"", "a", "a/", "b/a", "ä", "none", "a/a/"}[random() % 7];
        query.delimiter = std::array{"", "/", "a/", "!"}[random() % 4];
        query.maxResults = 1 + static_cast<int>(random() % 12);
        query.start = query.prefix;
        if (random() % 3 == 0)
            query.end = "b";
        std::vector<std::string> objects, prefixes;
        do {
            const ListPage page = m_objects->list(query);
            const std::size_t count = page.objects.size() + page.prefixes.size();
            QVERIFY(page.next.empty() ? count <= std::size_t(query.maxResults)
                                      : count == std::size_t(query.maxResults));
            for (const Object& object : page.objects)
                objects.push_back(object.name);
            prefixes.insert(prefixes.end(), page.prefixes.begin(), page.prefixes.end());
            query.start = page.next;
        } while (!query.start.empty());

        std::vector<std::string> wantedObjects;
        std::set<std::string> wantedPrefixes;
        for (const std::string& name : names) {
            if (name.compare(0, query.prefix.size(), query.prefix) != 0 ||
                (!query.end.empty() && name >= query.end))
                continue;
            const std::size_t mark =
                query.delimiter.empty() ? std::string::npos : name.find(query.delimiter, query.prefix.size());
            if (mark == std::string::npos)
                wantedObjects.push_back(name);
            else
                wantedPrefixes.insert(name.substr(0, mark + query.delimiter.size()));
        }
        QCOMPARE(objects, wantedObjects);
        QCOMPARE(prefixes, std::vector<std::string>(wantedPrefixes.begin(), wantedPrefixes.end()));
    }
}

void TestObjectStore::namesStayOutOfTheFileSystem()
{
    const QStringList before = QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const char* name : {"../../x", "/etc/passwd", "a/../../b", "..a", "C:\\x", "-rf", "a\tb"}) {
        const Object object = put(name, name);
        const std::optional<Object> found = m_objects->find(name);
        QVERIFY(found && m_objects->open(*found).read(0, 100) == name);
        QVERIFY(files("objects").contains(QString::number(object.generation)));
    }
    QCOMPARE(files("objects").size(), 7);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
    for (const std::string& name : {std::string(), std::string("."), std::string(".."), std::string("a\nb"),
                                    std::string("a\0b", 3), std::string("\xff"), std::string(1025, 'x')})
        QVERIFY(!isObjectName(name));
    QVERIFY(isObjectName(std::string(1024, 'x')));
}

void TestObjectStore::preconditions()
{
    const Object one = put("o", "1");
    const auto status = [&](const Preconditions& conditions, const char* name = "o") {
        try {
            put(name, "2", conditions);
            return 200;
        } catch (const Refusal& refusal) {
            return refusal.answer.status;
        }
    };
    const std::int64_t generation = one.generation;
    QCOMPARE(status({0, {}, {}, {}}), 412);
    QCOMPARE(status({generation + 1, {}, {}, {}}), 412);
    QCOMPARE(status({{}, generation, {}, {}}), 412);
    QCOMPARE(status({{}, {}, 2, {}}), 412);
    QCOMPARE(status({{}, {}, {}, 1}), 412);
    QCOMPARE(status({{}, 0, {}, {}}, "new"), 412);
    QCOMPARE(status({{}, {}, 1, {}}, "new"), 412);
    QCOMPARE(m_objects->open(*m_objects->find("o")).read(0, 9), std::string("1"));
    QVERIFY(!m_objects->find("new"));
    QCOMPARE(status({0, {}, {}, {}}, "new"), 200);
    QCOMPARE(status({generation, {}, 1, 2}), 200);
    QVERIFY(m_objects->find("o")->generation > generation);
}

void TestObjectStore::whatNoRowSpeaksOfGoes()
{
    put("kept", "x");
    put("kept", "y"); // the first one's file goes at once
    const Object copy =
        m_objects->copy(*m_objects->find("kept"), {"copy", Json::object(), false, {}, {}, {}});
    m_objects->remove(*m_objects->find("kept"));
    QCOMPARE(files("objects"), QStringList(QString::number(copy.generation)));
    const std::string id = m_uploads->begin({"later", Json::object(), false, {}, {}, {}}, 10)->id;
    m_uploads->find(id)->file->append("first");
    UploadFile cutOff = m_uploads->newFile();
    cutOff.append("half");
    for (const QString& orphan : {m_dir->filePath("objects/17"), m_dir->filePath("uploads/lost")}) {
        QFile file(orphan);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    open();
    QCOMPARE(files("objects"), QStringList(QString::number(copy.generation)));
    QCOMPARE(files("uploads"), QStringList(QString::fromStdString(id)));
    const auto session = m_uploads->find(id); // goes on where it was, hashes and all
    QCOMPARE(session->file->size(), std::int64_t(5));
    session->file->append("-half");
    const Object object = m_uploads->finish(*session);
    QCOMPARE(object.md5,
             QCryptographicHash::hash("first-half", QCryptographicHash::Md5).toBase64().toStdString());
    QCOMPARE(m_objects->open(*m_objects->find("copy")).read(0, 9), std::string("y"));
    QVERIFY(files("uploads").isEmpty());
}

QTEST_APPLESS_MAIN(TestObjectStore)
#include "tst_localcloud_objectstore.moc"
