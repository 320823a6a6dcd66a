#include "app/AppFixture.h"

#include "lib/text/LibString.h"
#include "lib/text/Numbers.h"

#include <clocale>

namespace {

class Locale : public AppFixture {};

TEST_F(Locale, NumbersKeepTheirPointWhateverTheUsersLocale)
{
    if (const QByteArray wanted = qgetenv("LC_ALL"); !wanted.isEmpty()) {
        EXPECT_EQ(wanted, QByteArray(std::setlocale(LC_TIME, nullptr)))
            << "the locale of this run is not there";
    }
    EXPECT_STREQ("C", std::setlocale(LC_NUMERIC, nullptr));
    LibString text;
    text.Format("%0.2f", 1.5);
    EXPECT_STREQ("1.50", text);
    EXPECT_EQ(2.5, DecimalValue("2.5"));
}

} // namespace
