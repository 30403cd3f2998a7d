#include "session/statement_text.h"

#include "session/data_folder.h"

#include <gtest/gtest.h>

namespace levora::session {
namespace {

TEST(StatementTextTest, TurnsTheScreensWordsIntoTheEngines) {
    struct Case {
        const char *why, *told, *text;
    };
    constexpr Case cases[] = {
        {"the asterisk of a delete says nothing", "DELETE * FROM T WHERE A = 1 ;",
         "DELETE  FROM T WHERE A = 1 ;"},
        {"that of a count stays", "SELECT count(*) FROM T", "SELECT count(*) FROM T ORDER BY rowid"},
        {"dates are month first", "SELECT a FROM T WHERE D = #09/30/2014# ;",
         "SELECT a FROM T WHERE D = '2014-09-30' ORDER BY rowid ;"},
        {"literals stay", "UPDATE T SET a = '#09/30/2014# [b]; DELETE * FROM'",
         "UPDATE T SET a = '#09/30/2014# [b]; DELETE * FROM'"},
        {"a doubled quote ends no literal", "UPDATE T SET a = 'it''s #1/2/2014#'",
         "UPDATE T SET a = 'it''s #1/2/2014#'"},
        {"an order that leaves ties gets the saved one behind it", "Select * From [My T] Order by SrNo",
         "Select * From [My T] Order by SrNo, rowid"},
        {"a limit stays last", "SELECT a FROM T LIMIT 1", "SELECT a FROM T ORDER BY rowid LIMIT 1"},
        {"several tables have no saved order", "SELECT a FROM T, U", "SELECT a FROM T, U"},
        {"nor have groups", "SELECT a FROM T GROUP BY a", "SELECT a FROM T GROUP BY a"},
        {"a comment is no statement", "SELECT a FROM T; -- #1/1/2014#",
         "SELECT a FROM T ORDER BY rowid; -- #1/1/2014#"},
        {"a comment hides what stands in it", "SELECT a /* ; [b] */ FROM T /* open",
         "SELECT a /* ; [b] */ FROM T ORDER BY rowid /* open"},
        {"another folder's file", "SELECT a FROM [/d/x]y/Assessee.mdb; PWD=p].AssesseeInfo where a=1 ",
         "SELECT a FROM other_store_1.AssesseeInfo where a=1 ORDER BY rowid "},
        {"named twice", "SELECT a FROM [/d/A.mdb; PWD=p].T, [/d/A.mdb; PWD=p].U",
         "SELECT a FROM other_store_1.T, other_store_1.U"},
        {"with a password and without",
         "SELECT a FROM [/d/A.mdb].T, [/d/B.mdb; PWD=p].U, [/d/A.mdb; PWD=p].V",
         "SELECT a FROM other_store_1.T, other_store_2.U, other_store_1.V"},
        {"a year first, and what is no date", "SELECT `a` FROM [/d/x] WHERE b = #2014-09-30# OR b = #x#",
         "SELECT `a` FROM [/d/x] WHERE b = '2014-09-30' OR b = #x# ORDER BY rowid"},
        {"a trigger's own statements belong to it", "CREATE TRIGGER t INSERT ON T BEGIN SELECT 1; END;",
         "CREATE TRIGGER t INSERT ON T BEGIN SELECT 1; END;"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(translate(each.told).in_saved_order(), each.text) << each.why;
    EXPECT_EQ(translate("SELECT a FROM [/d/x]y/Assessee.mdb; PWD=p].T").attached.at(0).file,
              "/d/x]y/Assessee.mdb");
    EXPECT_EQ(translate("Select * From T Where Clause='SchBTP'").with_row_number(),
              "Select rowid, * From T Where Clause='SchBTP' ORDER BY rowid");
}

TEST(StatementTextTest, RefusesASecondStatementAndADateThatIsNone) {
    EXPECT_EQ(testing::failure_of([] { translate("DELETE FROM T; DELETE FROM U"); }),
              "1 Characters found after end of statement: DELETE");
    EXPECT_EQ(testing::failure_of(
                  [] { translate("CREATE TRIGGER t INSERT ON T BEGIN SELECT 1; END; DROP TABLE U"); }),
              "1 Characters found after end of statement: DROP");
    EXPECT_EQ(testing::failure_of([] { translate("SELECT a FROM T WHERE d = #02/30/2014#"); }),
              "1 Syntax error in date in statement: #02/30/2014#");
    EXPECT_EQ(testing::failure_of([] { translate("SELECT a FROM T WHERE d = #02/30#"); }),
              "1 Syntax error in date in statement: #02/30#");
    EXPECT_EQ(testing::failure_of([] { translate(std::string_view("DELETE FROM T\0x", 15)); }),
              "1 The statement holds a NUL character");
}

TEST(StatementTextTest, FindsTheFileBehindAConnectString) {
    struct Case {
        const char *why, *told, *file;
    };
    constexpr Case cases[] = {
        {"the usual", "Provider=P;Data Source=/data/LVWTax.mdb;Jet OLEDB:Database Password=x;",
         "/data/LVWTax.db"},
        {"no folder set", "Provider=P;Data Source=/LVIT.mdb;Jet", "/LVIT.db"},
        {"a folder's own semicolon", "Data Source=/a;b/LVIT.mdb;Jet", "/a;b/LVIT.db"},
        {"a kept separator", "data source=/data\\LVWTax.mdb", "/data/LVWTax.db"},
        {"none", "Provider=P;", ""},
    };
    for (const Case& each : cases)
        EXPECT_EQ(store_file(data_source(each.told)), each.file) << each.why;
}

} // namespace
} // namespace levora::session
