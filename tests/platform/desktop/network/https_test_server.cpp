#include "https_test_server.h"

#include <QFile>

namespace tarvo {
namespace {

constexpr int limitMilliseconds = 20'000;

} // namespace

TestAuthority::TestAuthority() {
    usable_ =
        makeSelfSigned(QStringLiteral("authority"), QStringLiteral("/CN=Tarvo test authority")) &&
        makeSelfSigned(QStringLiteral("stranger"), QStringLiteral("/CN=127.0.0.1")) &&
        issue(QStringLiteral("trusted"), QStringLiteral("DNS:localhost,IP:127.0.0.1"), QStringLiteral("2")) &&
        issue(QStringLiteral("expired"), QStringLiteral("DNS:localhost,IP:127.0.0.1"),
              QStringLiteral("-1")) &&
        issue(QStringLiteral("other"), QStringLiteral("DNS:other.example"), QStringLiteral("2"));
}

QSslCertificate TestAuthority::certificate() const {
    return QSslCertificate::fromPath(certificatePath()).value(0);
}

bool TestAuthority::run(const QStringList& arguments) const {
    QProcess openssl;
    openssl.setWorkingDirectory(folder_.path());
    openssl.start(QStringLiteral("openssl"), arguments);
    return openssl.waitForFinished(limitMilliseconds) && openssl.exitCode() == 0;
}

bool TestAuthority::makeSelfSigned(const QString& name, const QString& subject) const {
    return run({"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-days",
                "2", "-subj", subject, "-keyout", name + ".key", "-out", name + ".pem"});
}

bool TestAuthority::issue(const QString& name, const QString& alternativeName, const QString& days) const {
    QFile extensions(path(name + ".ext"));
    if (!extensions.open(QIODevice::WriteOnly)) return false;
    extensions.write("basicConstraints=CA:FALSE\nsubjectAltName=" + alternativeName.toUtf8() + "\n");
    extensions.close();
    return run({"req", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-subj",
                "/CN=" + name, "-keyout", name + ".key", "-out", name + ".csr"}) &&
           run({"x509", "-req", "-in", name + ".csr", "-CA", "authority.pem", "-CAkey", "authority.key",
                "-CAcreateserial", "-days", days, "-extfile", name + ".ext", "-out", name + ".pem"});
}

HTTPSTestServer::HTTPSTestServer(const TestAuthority::Identity& identity) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QStringLiteral("python3"), {QStringLiteral(TARVO_TEST_SOURCE "/https_test_server.py"),
                                               identity.certificate, identity.key});
    QStringList ports;
    while (ports.size() < 2 && process_.state() != QProcess::NotRunning) {
        if (!process_.waitForReadyRead(limitMilliseconds)) return;
        ports += readLines();
    }
    if (ports.size() < 2) return;
    securePort_ = ports[0].section(' ', 1).toInt();
    plainPort_ = ports[1].section(' ', 1).toInt();
}

HTTPSTestServer::~HTTPSTestServer() {
    process_.closeWriteChannel();
    if (!process_.waitForFinished(limitMilliseconds)) process_.kill();
    process_.waitForFinished();
}

std::string HTTPSTestServer::address(const std::string& path, const std::string& host) const {
    return "https://" + host + ":" + std::to_string(securePort_) + "/" + path;
}

std::string HTTPSTestServer::plainAddress(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(plainPort_) + "/" + path;
}

QStringList HTTPSTestServer::takeAskedPaths() {
    QStringList paths;
    process_.waitForReadyRead(0);
    for (const QString& line : readLines()) {
        if (line.startsWith("asked ")) paths += line.section(' ', 1);
    }
    return paths;
}

QStringList HTTPSTestServer::readLines() {
    QStringList lines;
    while (process_.canReadLine())
        lines += QString::fromUtf8(process_.readLine()).trimmed();
    return lines;
}

} // namespace tarvo
