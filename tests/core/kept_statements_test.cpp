// The statements that stay prepared: which of them, what they become of texts with values, and when they go.
#include "core/kept_statements.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>
#include <vector>

#include "core/statement_shape.h"
#include "support/database.h"

namespace {

using routerdb::KeptStatements;
using Lines = std::vector<std::string>;

constexpr unsigned plenty = 1000000;

std::string shape_of(const char *sql) {
    routerdb::StackText<16> shape;
    routerdb::append_shape(shape, sql);
    return shape.c_str();
}

class Statements : public testing::Test {
protected:
    ~Statements() override { kept_.clear(); }

    /// Prepares, steps, puts back.
    /// @return the first column of the first row
    std::string run(const std::string &sql, unsigned limit = plenty) {
        sqlite3_stmt *statement = nullptr;
        EXPECT_EQ(kept_.prepare(database_.handle(), sql.c_str(), &statement), SQLITE_OK);
        EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW);
        const auto *const text = reinterpret_cast<const char *>(sqlite3_column_text(statement, 0));
        const std::string value = text != nullptr ? text : "NULL";
        kept_.put_back(statement, limit);
        return value;
    }

    /// The texts of those that are there, the one that was prepared last in front.
    Lines there() const {
        Lines texts;
        for (sqlite3_stmt *statement = nullptr;
             (statement = sqlite3_next_stmt(database_.handle(), statement)) != nullptr;) {
            texts.emplace_back(sqlite3_sql(statement));
        }
        return texts;
    }

    unsigned memory() const {
        unsigned sum = 0;
        for (sqlite3_stmt *statement = nullptr;
             (statement = sqlite3_next_stmt(database_.handle(), statement)) != nullptr;) {
            sum += static_cast<unsigned>(sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_MEMUSED, 0));
        }
        return sum;
    }

    support::Database database_;
    KeptStatements kept_;
};

TEST(StatementShape, has_a_parameter_for_each_value) {
    EXPECT_EQ(shape_of("select * from DevInfo where Dev_Sn='7';"), "select * from DevInfo where Dev_Sn=?;");
    EXPECT_EQ(shape_of("select 'it''s', '''', '' , 'a''''b' from t"), "select ?, ?, ? , ? from t");
    EXPECT_EQ(shape_of("select 1 from DevInfo"), "select 1 from DevInfo");
    EXPECT_EQ(shape_of("select 'not ended"), "select 'not ended");
    EXPECT_EQ(shape_of(""), "");
}

TEST(StatementShape, is_that_of_texts_that_differ_in_values_alone) {
    EXPECT_TRUE(routerdb::is_shape_of("select ? from t where a=?;", "select 'it''s' from t where a='';"));
    EXPECT_TRUE(routerdb::is_shape_of("select * from t where a=?1;", "select * from t where a=?1;"));
    EXPECT_FALSE(routerdb::is_shape_of("select * from t where a=?;", "select * from t where a='7' or 1;"));
    EXPECT_FALSE(routerdb::is_shape_of("select * from t where a=?;", "select * from t where a=7;"));
    EXPECT_FALSE(routerdb::is_shape_of("select * from t where a=? or 1;", "select * from t where a='7'"));
    EXPECT_FALSE(routerdb::is_shape_of("select * from t where a=?;", "select * from t where a='not ended"));
}

TEST_F(Statements, give_values_back_as_they_were) {
    EXPECT_EQ(run("select 'it''s' || '''' || '' || 'a''''b';"), "it's'a''b");
    EXPECT_EQ(run("select '" + std::string(100000, 'x') + "';"), std::string(100000, 'x'));
    EXPECT_EQ(run("select typeof('7');"), "text");
}

TEST_F(Statements, are_prepared_once_for_all_values) {
    EXPECT_EQ(run("select 'first';"), "first");
    EXPECT_EQ(run("select 'second';"), "second");
    EXPECT_EQ(there(), Lines{"select ?;"});
}

TEST_F(Statements, that_are_in_use_are_not_lent_again) {
    sqlite3_stmt *statement = nullptr;
    run("select 'first';");
    ASSERT_EQ(kept_.prepare(database_.handle(), "select 'second';", &statement), SQLITE_OK);
    EXPECT_EQ(run("select 'third';"), "third");
    EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW);
    EXPECT_STREQ(reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)), "second");
    kept_.put_back(statement, plenty);
}

TEST_F(Statements, that_are_in_use_stay_whatever_others_take) {
    sqlite3_stmt *statement = nullptr;
    run("select 'first';");
    ASSERT_EQ(kept_.prepare(database_.handle(), "select 'second';", &statement), SQLITE_OK);
    run("select 2;", 1);
    EXPECT_EQ(there(), Lines{"select ?;"});
    kept_.put_back(statement, plenty);
}

TEST_F(Statements, hold_no_value_and_no_row_while_they_are_kept) {
    run("select 'first' from sqlite_master;");
    sqlite3_stmt *const statement = sqlite3_next_stmt(database_.handle(), nullptr);
    EXPECT_EQ(sqlite3_stmt_busy(statement), 0);
    EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW);
    EXPECT_EQ(sqlite3_column_type(statement, 0), SQLITE_NULL);
    sqlite3_reset(statement);
}

TEST_F(Statements, that_were_used_longest_ago_go_first) {
    run("select 1;");
    run("select 2;");
    run("select 3;");
    run("select 1;");
    const unsigned limit = memory();
    run("select 4;", limit);
    EXPECT_EQ(there(), (Lines{"select 4;", "select 3;", "select 1;"}));
}

TEST_F(Statements, together_take_no_more_memory_than_they_may) {
    constexpr unsigned limit = 20000;
    for (int round = 0; round < 100; ++round) {
        run("select count(*), " + std::to_string(round % 37) + " from DevInfo;", limit);
        EXPECT_LE(memory(), limit);
    }
    EXPECT_GE(there().size(), 2U);
}

TEST_F(Statements, are_eight_at_most) {
    for (int round = 0; round < 100; ++round) {
        run("select " + std::to_string(round % 37) + ";");
        EXPECT_LE(there().size(), 8U);
    }
    EXPECT_EQ(there().size(), 8U);
}

TEST_F(Statements, that_alone_take_more_are_not_kept) {
    run("select 1;");
    run("select count(*) from sqlite_master where name like '%a%';", memory());
    EXPECT_EQ(there(), Lines{"select 1;"});
}

TEST_F(Statements, all_go_at_once) {
    run("select 1;");
    run("select 2;");
    kept_.clear();
    EXPECT_EQ(there(), Lines());
}

}  // namespace
