// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What measure.py measures of the cloud's client, a process each:
//   bench_cloud DEPLOYMENT get OBJECT FILE            downloads an object into a file
//   bench_cloud DEPLOYMENT carry PREFIX N FOLDER      downloads PREFIX0... into a folder, some at once
//   bench_cloud DEPLOYMENT singly TOKEN PREFIX N FOLDER   the same, one behind the other, a connection each
//   bench_cloud DEPLOYMENT pull ROOT REVISION [ROUNDS]    pulls the project "Bench" into the workspace ROOT
//   and
//                                                         prints the milliseconds of each round
//   bench_cloud DEPLOYMENT sign SECONDS               prints signatures a second, and those of bare
//   LibTomCrypt
//   bench_cloud DEPLOYMENT revisions ROOT N           follows the revision of "Bench" in a window with one
//   animated
//                                                     item, writes N new ones, each when the last one was
//                                                     pulled, and prints the milliseconds from each write to
//                                                     the pull's begin
// NUVEX_BENCH_CA names a file with a certificate to trust.

#include "cloud/http/webfile.h"
#include "cloud/realtime/firebasesubscriber.h"
#include "cloud/storage/gcloud.h"
#include "cloud/sync/sharedfolderthread.h"

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickView>
#include <QSslConfiguration>

#include <array>
#include <cstdio>

#define LTM_DESC // declares ltm_desc
#include <tomcrypt.h>

namespace {

// A player without a picture.
class Player : public QObject, public CloudHost
{
public:
    explicit Player(const QString& root)
        : m_root(root)
    {
        QDir().mkpath(workDirectory());
        QDir().mkpath(shareFolder());
    }

    QString workDirectory() const override { return m_root + QStringLiteral("/Work"); }
    QString shareFolder() const override { return m_root + QStringLiteral("/ShareFolder"); }
    QString account() const override { return QStringLiteral("a@b.c"); }
    bool isConnected() const override { return true; }
    bool isDocument(const QString& text) const override { return !text.isEmpty(); }
    void stopPlayer(const std::function<void()>& done) override { QMetaObject::invokeMethod(this, done); }

private:
    const QString m_root;
};

bool carry(const Deployment& deployment, const QString& prefix, int count, const QString& folder)
{
    GCloud cloud(deployment);
    QVector<FileTransfer> files;
    for (int i = 0; i < count; ++i) {
        const QString number = QString::number(i);
        files.append({cloud.urlToDownload(prefix + number), folder + QLatin1Char('/') + number});
    }
    cloud.carry(Transfer::Method::Get, files, [](int, qint64, qint64) {});
    return std::all_of(files.cbegin(), files.cend(),
                       [](const FileTransfer& file) { return file.fault == StorageFault::None; });
}

bool singly(const Deployment& deployment, const QByteArray& token, const QString& prefix, int count,
            const QString& folder)
{
    const GCloud cloud(deployment);
    for (int i = 0; i < count; ++i) {
        const QString number = QString::number(i);
        QFile file(folder + QLatin1Char('/') + number);
        Webfile request(cloud.urlToDownload(prefix + number), {{"Authorization", "Bearer " + token}});
        if (!file.open(QIODevice::WriteOnly) || !request.get(&file))
            return false;
    }
    return true;
}

// Each round pulls another revision, which begins with that of the first one.
bool pull(const Deployment& deployment, const QString& root, int revision, int rounds)
{
    Player player(root);
    SharedFolderThread worker(deployment, player);
    int updates = 0;
    QObject::connect(&worker, &SharedFolderThread::projectUpdated, &player, [&updates] { ++updates; });
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer clock;
        clock.start();
        worker.waitFor(worker.pull(QStringLiteral("Bench"), QString::number(revision + round)));
        std::printf("%.2f\n", double(clock.nsecsElapsed()) / 1e6);
    }
    QCoreApplication::processEvents();
    return updates == rounds;
}

// Somebody elsewhere publishes: one write of the revision after the other, on a kept connection.
class Publisher : public QObject
{
public:
    explicit Publisher(const Deployment& deployment)
        : m_place(deployment.hosts.database +
                  QStringLiteral("/Users/abc/Projects/Bench/revision.json?auth=") +
                  deployment.databaseCredential)
    {
    }

    QString place() const { return m_place; }
    void write(int revision)
    {
        QNetworkReply* reply = m_manager.put(QNetworkRequest(QUrl(m_place)), QByteArray::number(revision));
        connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
    }

private:
    const QString m_place;
    QNetworkAccessManager m_manager;
};

void showAnimation(QQuickView& view)
{
    QQmlComponent scene(view.engine());
    scene.setData("import QtQuick 2.15\nItem { width: 640; height: 360\nRectangle { width: 90; height: 90; "
                  "color: 'teal'\n"
                  "NumberAnimation on x { from: 0; to: 500; duration: 2000; loops: Animation.Infinite } } }",
                  QUrl());
    view.setContent(QUrl(), &scene, scene.create());
    view.show();
}

bool revisions(const Deployment& deployment, const QString& root, int count)
{
    QQuickView view;
    showAnimation(view);
    Player player(root);
    SharedFolderThread worker(deployment, player);
    Publisher publisher(deployment);
    FirebaseSubscriber subscriber;
    QElapsedTimer sinceWrite;
    int revision = 0;
    const auto publish = [&] {
        sinceWrite.start();
        publisher.write(++revision);
    };
    QObject::connect(&subscriber, &FirebaseSubscriber::dataReceived, &player, [&](const QString& event) {
        if (event.endsWith(QStringLiteral("\"data\":%1}\n\n").arg(revision)))
            worker.pull(QStringLiteral("Bench"), QString::number(revision));
    });
    QObject::connect(
        &worker, &SharedFolderThread::startUpdating, &player,
        [&] { std::printf("%.3f\n", double(sinceWrite.nsecsElapsed()) / 1e6); }, Qt::DirectConnection);
    QObject::connect(&worker, &SharedFolderThread::projectUpdated, &player, [&] {
        if (revision < count)
            publish();
        else
            QCoreApplication::quit();
    });
    subscriber.subscribe(publisher.place());
    publish();
    return QCoreApplication::exec() == 0;
}

// Works a second by the one and by the other, in turns, so that both have the same share of a busy machine.
template <typename One, typename Other>
std::pair<double, double> perSecond(int seconds, const One& one, const Other& other)
{
    QElapsedTimer clock;
    qint64 times[2] = {}; // ns
    int rounds = 0;
    for (; times[0] + times[1] < 2LL * seconds * 1'000'000'000; ++rounds) {
        clock.start();
        one();
        times[0] += clock.nsecsElapsed();
        clock.start();
        other();
        times[1] += clock.nsecsElapsed();
    }
    return {rounds * 1e9 / double(times[0]), rounds * 1e9 / double(times[1])};
}

// The least that the library has to do for a signature with a key that it has read once.
class BareSigner
{
public:
    explicit BareSigner(const QByteArray& key)
    {
        ltc_mp = ltm_desc;
        m_hash = register_hash(&sha256_desc);
        rsa_import(reinterpret_cast<const unsigned char*>(key.constData()), ulong(key.size()), &m_key);
    }
    ~BareSigner() { rsa_free(&m_key); }
    Q_DISABLE_COPY(BareSigner)

    void sign(const QByteArray& bytes)
    {
        std::array<unsigned char, 32> digest{};
        hash_state state;
        sha256_desc.init(&state);
        sha256_desc.process(&state, reinterpret_cast<const unsigned char*>(bytes.constData()),
                            ulong(bytes.size()));
        sha256_desc.done(&state, digest.data());
        std::array<unsigned char, 512> signature{};
        ulong size = signature.size();
        rsa_sign_hash_ex(digest.data(), digest.size(), signature.data(), &size, LTC_PKCS_1_V1_5, nullptr, 0,
                         m_hash, 0, &m_key);
    }

private:
    rsa_key m_key{};
    int m_hash = -1;
};

bool sign(const Deployment& deployment, int seconds)
{
    const GCloud cloud(deployment);
    BareSigner bare(deployment.serviceAccount.privateKey);
    const QByteArray text(400, 'x');
    for (int round = 0; round < 3; ++round) {
        const auto [ours, least] = perSecond(
            seconds, [&] { cloud.sign(text); }, [&] { bare.sign(text); });
        std::printf("%.1f %.1f\n", ours, least);
    }
    return !cloud.sign(text).isEmpty();
}

void trustAlso(const QString& file)
{
    if (file.isEmpty())
        return;
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(file);
    QSslConfiguration::setDefaultConfiguration(configuration);
}

bool run(const Deployment& deployment, const QStringList& words)
{
    const QString what = words.value(0);
    if (what == QLatin1String("get"))
        return bool(GCloud(deployment).downloadFile(words.value(1), words.value(2)));
    if (what == QLatin1String("carry"))
        return carry(deployment, words.value(1), words.value(2).toInt(), words.value(3));
    if (what == QLatin1String("singly"))
        return singly(deployment, words.value(1).toLatin1(), words.value(2), words.value(3).toInt(),
                      words.value(4));
    if (what == QLatin1String("pull"))
        return pull(deployment, words.value(1), words.value(2).toInt(), qMax(1, words.value(3).toInt()));
    if (what == QLatin1String("revisions"))
        return revisions(deployment, words.value(1), words.value(2).toInt());
    return what == QLatin1String("sign") && sign(deployment, words.value(1).toInt());
}

} // namespace

int main(int argc, char* argv[])
{
    useLightEventLoops(); // as the program does
    const bool hasWindow = argc > 2 && qstrcmp(argv[2], "revisions") == 0;
    const std::unique_ptr<QCoreApplication> application(hasWindow ? new QGuiApplication(argc, argv)
                                                                  : new QCoreApplication(argc, argv));
    trustAlso(qEnvironmentVariable("NUVEX_BENCH_CA"));
    const QStringList words = QCoreApplication::arguments();
    return run(Deployment::find(words.value(1)), words.mid(2)) ? 0 : 1;
}
