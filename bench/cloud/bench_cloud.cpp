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
// NUVEX_BENCH_CA names a file with a certificate to trust.

#include "cloud/http/webfile.h"
#include "cloud/storage/gcloud.h"
#include "cloud/sync/sharedfolderthread.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
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

template <typename Work>
double perSecond(int seconds, const Work& work)
{
    constexpr int atOnce = 20;
    QElapsedTimer clock;
    clock.start();
    int done = 0;
    while (clock.elapsed() < seconds * 1000) {
        for (int i = 0; i < atOnce; ++i)
            work();
        done += atOnce;
    }
    return done * 1000.0 / double(clock.elapsed());
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
        const double ours = perSecond(seconds, [&] { cloud.sign(text); });
        const double least = perSecond(seconds, [&] { bare.sign(text); });
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
    return what == QLatin1String("sign") && sign(deployment, words.value(1).toInt());
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    trustAlso(qEnvironmentVariable("NUVEX_BENCH_CA"));
    const QStringList words = QCoreApplication::arguments();
    return run(Deployment::find(words.value(1)), words.mid(2)) ? 0 : 1;
}
