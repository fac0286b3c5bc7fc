#pragma once

#include <QProcess>
#include <QSslCertificate>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <string>

namespace tarvo {

/// A certificate authority of the test's own, with certificates for this machine that it or somebody else
/// signed.
class TestAuthority {
public:
    /// Makes everything with the openssl command.
    TestAuthority();

    bool isUsable() const { return usable_; }
    QString certificatePath() const { return path(QStringLiteral("authority.pem")); }
    QSslCertificate certificate() const;

    struct Identity {
        QString certificate;
        QString key;
    };
    Identity trusted() const { return identity(QStringLiteral("trusted")); }
    Identity expired() const { return identity(QStringLiteral("expired")); }
    Identity otherHost() const { return identity(QStringLiteral("other")); }
    Identity selfSigned() const {
        return {path(QStringLiteral("stranger.pem")), path(QStringLiteral("stranger.key"))};
    }

private:
    QString path(const QString& name) const { return folder_.filePath(name); }
    Identity identity(const QString& name) const { return {path(name + ".pem"), path(name + ".key")}; }
    bool run(const QStringList& arguments) const;
    bool makeSelfSigned(const QString& name, const QString& subject) const;
    bool issue(const QString& name, const QString& alternativeName, const QString& days) const;

    QTemporaryDir folder_;
    bool usable_ = false;
};

/// The server script as a child process.
class HTTPSTestServer {
public:
    explicit HTTPSTestServer(const TestAuthority::Identity& identity);
    ~HTTPSTestServer();

    bool isRunning() const { return securePort_ != 0; }
    std::string address(const std::string& path, const std::string& host = "127.0.0.1") const;
    std::string plainAddress(const std::string& path) const;
    /// The paths that were asked for since the last call, in order.
    QStringList takeAskedPaths();

private:
    QStringList readLines();

    QProcess process_;
    int securePort_ = 0;
    int plainPort_ = 0;
};

} // namespace tarvo
