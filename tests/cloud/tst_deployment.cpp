// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/deployment.h"
#include "cloud/storage/accountkey.h"
#include "tests/support/logcapture.h"
#include "tests/support/process.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray& pem()
{
    static const QByteArray key = newKey();
    return key;
}

QJsonObject sample()
{
    const QString key = QString::fromLatin1(pem());
    const QJsonObject account{{"type", "service_account"}, {"project_id", "p"},     {"private_key_id", "k"},
                              {"private_key", key},        {"client_email", "e@x"}, {"client_id", "1"}};
    const QJsonObject hosts{{"token", "https://token.example"},
                            {"storage", "https://storage.example/"},
                            {"signedUrl", "https://signed.example"},
                            {"database", "http://127.0.0.1:8080"},
                            {"identity", "https://identity.example"}};
    return {
        {"serviceAccount", account},
        {"bucket", "bucket"},
        {"hosts", hosts},
        {"databaseCredential", "SECRETCREDENTIAL"},
        {"webApiKey", "SECRETAPI"},
        {"lan", QJsonObject{{"broadcastAddresses", QJsonArray{"10.0.0.255"}}, {"exchangeProject", "Demo"}}}};
}

// The sample with one member, "a.b" for one of an object in it, changed; an undefined value removes it.
QJsonObject with(const QString& member, const QJsonValue& value)
{
    QJsonObject object = sample();
    const QStringList names = member.split('.');
    QJsonObject inner = names.size() > 1 ? object.value(names[0]).toObject() : object;
    if (value.isUndefined())
        inner.remove(names.constLast());
    else
        inner.insert(names.constLast(), value);
    if (names.size() == 1)
        return inner;
    object.insert(names[0], inner);
    return object;
}

QByteArray text(const QJsonObject& object)
{
    return QJsonDocument(object).toJson();
}

} // namespace

class TestDeployment : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsEveryMember();
    void faults_data();
    void faults();
    void brokenFiles_data();
    void brokenFiles();
    void searchOrder();
    void infoForQml();

private:
    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_dir->filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        return file.fileName();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestDeployment::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    qunsetenv("NUVEX_DEPLOYMENT");
}

void TestDeployment::readsEveryMember()
{
    QString fault;
    const Deployment d = Deployment::parse(text(sample()), &fault);
    QVERIFY2(d.isSet(), qPrintable(fault));
    QCOMPARE(d.serviceAccount.privateKey, rsaKeyFromPem(pem()));
    QCOMPARE(
        (QStringList{d.serviceAccount.projectId, d.serviceAccount.privateKeyId, d.serviceAccount.clientEmail,
                     d.serviceAccount.clientId, d.bucket, d.databaseCredential, d.webApiKey}),
        (QStringList{"p", "k", "e@x", "1", "bucket", "SECRETCREDENTIAL", "SECRETAPI"}));
    QCOMPARE(
        (QStringList{d.hosts.token, d.hosts.storage, d.hosts.signedUrl, d.hosts.database, d.hosts.identity}),
        (QStringList{"https://token.example", "https://storage.example", "https://signed.example",
                     "http://127.0.0.1:8080", "https://identity.example"}));
    QCOMPARE(d.broadcastAddresses, QStringList{"10.0.0.255"});
    QCOMPARE(d.exchangeProject, QStringLiteral("Demo"));
    QVERIFY(Deployment::parse(text(with("lan", QJsonValue::Undefined)), &fault).isSet());
    const Deployment offline =
        Deployment::parse(R"({"lan": {"broadcastAddresses": ["10.0.0.255"]}})", &fault);
    QVERIFY2(fault.isEmpty() && !offline.isSet(), qPrintable(fault));
    QCOMPARE(offline.broadcastAddresses, QStringList{"10.0.0.255"});
}

void TestDeployment::faults_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QJsonValue>("value");
    const auto row = [](const char* member, const QJsonValue& value) {
        QTest::addRow("%s %d %s", member, int(value.type()), qPrintable(value.toString().left(27)))
            << QString(member) << value;
    };
    for (const char* member : {"serviceAccount", "bucket", "hosts", "databaseCredential", "webApiKey"}) {
        row(member, QJsonValue::Undefined);
        row(member, 5);
    }
    for (const char* member : {"private_key", "client_email", "project_id"})
        row(qPrintable(QStringLiteral("serviceAccount.") + member), QJsonValue::Undefined);
    row("serviceAccount.private_key", "SECRETKEY");
    row("serviceAccount.private_key", QString::fromLatin1(pem()).replace("MII", "SECRET"));
    row("serviceAccount.client_email", "");
    row("bucket", "");
    for (const char* host : {"", "token.example", "ftp://x", "https://", "https://x/path",
                             "https://u:SECRETKEY@x", "https://x?q", "https://x y"})
        row("hosts.storage", host);
    row("hosts.database", QJsonValue::Undefined);
    row("lan", "text");
    row("lan.broadcastAddresses", "10.0.0.255");
    row("lan.broadcastAddresses", QJsonArray{"10.0.0.256"});
    row("lan.broadcastAddresses", QJsonArray{"ff02::1"});
    row("lan.exchangeProject", 1);
}

// A broken file counts as none; the log names the file and the member, and no secret.
void TestDeployment::faults()
{
    QFETCH(QString, member);
    QFETCH(QJsonValue, value);
    const QString file = write(QStringLiteral("broken.json"), text(with(member, value)));
    const LogCapture log;
    const Deployment deployment = Deployment::read(file);
    QVERIFY(!deployment.isSet());
    QVERIFY(deployment.webApiKey.isEmpty());
    QCOMPARE(log.messages().size(), 1);
    QVERIFY2(log.contains(file) && log.contains('"' + member), qPrintable(log.messages().constFirst()));
    QVERIFY2(!log.contains("SECRET"), qPrintable(log.messages().constFirst()));
    QVERIFY(log.messages().constFirst().endsWith(deployment.fault.mid(file.size())));
}

void TestDeployment::brokenFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("{ \"serviceAccount\": SECRET");
    QTest::newRow("cut") << text(sample()).chopped(20);
    QTest::newRow("list") << QByteArray("[1]");
    QTest::newRow("deep") << QByteArray(100'000, '[');
    QTest::newRow("too large") << QByteArray(2'000'000, ' ') + text(sample());
}

void TestDeployment::brokenFiles()
{
    QFETCH(QByteArray, bytes);
    const QString file = write(QStringLiteral("broken.json"), bytes);
    const LogCapture log;
    QVERIFY(!Deployment::read(file).isSet());
    QCOMPARE(log.messages().size(), 1);
    QVERIFY(log.contains(file));
    QVERIFY(!log.contains("SECRET"));
}

void TestDeployment::searchOrder()
{
    const QString first = write(QStringLiteral("1.json"), text(with("bucket", "first")));
    const QString second = write(QStringLiteral("2.json"), text(with("bucket", "second")));
    qputenv("NUVEX_DEPLOYMENT", QFile::encodeName(second));
    QCOMPARE(Deployment::find(first).bucket, QStringLiteral("first"));
    QCOMPARE(Deployment::find({}).bucket, QStringLiteral("second"));
    QVERIFY2(!Deployment::find(m_dir->filePath("missing")).isSet(), "a named file is not passed over");
}

void TestDeployment::infoForQml()
{
    QString fault;
    const DeploymentInfo info(Deployment::parse(text(sample()), &fault));
    QCOMPARE(info.property("available").toBool(), true);
    QCOMPARE(info.property("database").toString(), QStringLiteral("http://127.0.0.1:8080"));
    QCOMPARE(info.property("databaseCredential").toString(), QStringLiteral("SECRETCREDENTIAL"));
    QCOMPARE(info.property("identity").toString(), QStringLiteral("https://identity.example"));
    QCOMPARE(info.property("webApiKey").toString(), QStringLiteral("SECRETAPI"));
    const DeploymentInfo none{Deployment()};
    QCOMPARE(none.property("available").toBool(), false);
    QCOMPARE(none.property("database").toString(), QString());
}

QTEST_GUILESS_MAIN(TestDeployment)
#include "tst_deployment.moc"
