#include "tests/behaviours/client_fetch.h"
#include "tests/behaviours/fetch_cases.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;

namespace {

class BehavioursTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(park.Stands()); }

    void ExpectOutcomes(const QList<FetchCase> &cases) {
        const QList<QSslCertificate> authorities = park.Authorities();
        ASSERT_EQ(authorities.size(), 1);
        const QList<FetchResult> results =
            RunAll(cases, 40, [&authorities](const FetchCase &row, const QString &path) {
                return std::make_unique<ClientFetch>(row, path, authorities);
            });
        for (qsizetype i = 0; i < cases.size(); ++i) {
            const FetchResult &result = results[i];
            SCOPED_TRACE(cases[i].Name().toStdString());
            EXPECT_EQ(result.outcome, cases[i].outcome) << result.reason.toStdString();
            EXPECT_TRUE(result.page.Is(cases[i].disk))
                << result.page.size << " bytes, " << result.page.start.toStdString();
            EXPECT_EQ(result.reason.isEmpty(), result.outcome != u"failed");
        }
    }

    ParkProcess park;
};

TEST_F(BehavioursTest, GiveTheirOutcomeAndPageOverPlainHttpAndTls) { ExpectOutcomes(BehaviourCases(park)); }

TEST_F(BehavioursTest, GiveTheSameThroughAProxy) { ExpectOutcomes(ProxyCases(park)); }

TEST_F(BehavioursTest, BadCertificatesHandshakesProxiesAndPortsFail) { ExpectOutcomes(GateCases(park)); }

} // namespace
