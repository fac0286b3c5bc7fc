#include "tarvo-fetch/fetch.h"

#include <QSslCertificate>

/// The helper as it is, but for one more authority that it trusts: the one that the test has made.
int main(int argumentCount, char** arguments) {
    return tarvo::fetchToStandardOutput(
        argumentCount, arguments,
        {.extraAuthorities = QSslCertificate::fromPath(qEnvironmentVariable("TARVO_TEST_AUTHORITY"))});
}
