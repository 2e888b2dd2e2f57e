// Identifier lists: muti_id_convert_int_array, generate_db_params.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <numeric>
#include <string>
#include <vector>

#include "routerdb.h"

namespace {

/// The identifiers of a list. Behind them the array is as it was.
std::vector<int> ids_of(std::string text) {
    std::vector<int> ids(200, INT_MIN);
    const int count = muti_id_convert_int_array(text.data(), ids.data());
    EXPECT_EQ(std::count(ids.begin() + count, ids.end(), INT_MIN), 200 - count);
    ids.resize(static_cast<std::size_t>(count));
    return ids;
}

/// "1#2#...#count"
std::string list_up_to(int count) {
    std::string text = "1";
    for (int id = 2; id <= count; ++id) {
        text += "#" + std::to_string(id);
    }
    return text;
}

/// What stands in a buffer of `size` bytes after a condition was appended to `before`.
std::string appended(std::string text, int column, const std::string &before = "", std::size_t size = 4096) {
    std::string out(5000, '~');
    out.replace(0, before.size() + 1, before.c_str(), before.size() + 1);
    const std::size_t length = generate_db_params(text.data(), out.data(), static_cast<unsigned>(size), column);
    const std::size_t end = out.find('\0');
    EXPECT_EQ(length, end);
    EXPECT_EQ(out.find_first_not_of('~', std::max(size, before.size() + 1)), std::string::npos) << "wrote behind it";
    return out.substr(0, end);
}

TEST(MutiIdConvertIntArray, reads_numbers_between_separators) {
    EXPECT_EQ(ids_of("3#7#12"), (std::vector<int>{3, 7, 12}));
    EXPECT_EQ(ids_of("-3#2147483647#-2147483648"), (std::vector<int>{-3, INT_MAX, INT_MIN}));
}

TEST(MutiIdConvertIntArray, a_text_without_separator_is_one_number) {
    EXPECT_EQ(ids_of("5"), std::vector<int>{5});
    EXPECT_EQ(ids_of("-3"), std::vector<int>{-3});
    EXPECT_EQ(ids_of("x"), std::vector<int>{0});
    EXPECT_EQ(ids_of(""), std::vector<int>{0});
}

TEST(MutiIdConvertIntArray, empty_fields_vanish) {
    EXPECT_EQ(ids_of("#5##9#"), (std::vector<int>{5, 9}));
    EXPECT_EQ(ids_of("5#"), std::vector<int>{5});
    EXPECT_EQ(ids_of("#5"), std::vector<int>{5});
}

TEST(MutiIdConvertIntArray, separators_alone_are_no_number) {
    EXPECT_EQ(ids_of("###"), std::vector<int>());
    EXPECT_EQ(ids_of("#"), std::vector<int>());
}

TEST(MutiIdConvertIntArray, a_field_that_is_no_number_counts_as_0_or_its_leading_digits) {
    EXPECT_EQ(ids_of("7#x#9"), (std::vector<int>{7, 0, 9}));
    EXPECT_EQ(ids_of("7#12ab# 4#"), (std::vector<int>{7, 12, 4}));
}

TEST(MutiIdConvertIntArray, reads_no_more_than_128_numbers) {
    std::vector<int> first_128(128);
    std::iota(first_128.begin(), first_128.end(), 1);
    EXPECT_EQ(ids_of(list_up_to(128)), first_128);
    EXPECT_EQ(ids_of(list_up_to(129)), first_128);
    EXPECT_EQ(ids_of(list_up_to(200)), first_128);
}

TEST(MutiIdConvertIntArray, null_holds_no_number) {
    int id = 42;
    EXPECT_EQ(muti_id_convert_int_array(nullptr, &id), 0);
    EXPECT_EQ(id, 42);
}

TEST(MutiIdConvertIntArray, overwrites_separators_and_nothing_else) {
    int ids[128];
    std::string list = "3#7";
    muti_id_convert_int_array(list.data(), ids);
    EXPECT_EQ(list, std::string("3\0"
                                "7",
                                3));
    std::string single = "3 7";
    muti_id_convert_int_array(single.data(), ids);
    EXPECT_EQ(single, "3 7");
}

TEST(GenerateDbParams, appends_one_term_for_each_identifier) {
    EXPECT_EQ(appended("3#7#12", 0), "id='3' or id='7' or id='12'");
    EXPECT_EQ(appended("4#8", 1, "delete from t where "), "delete from t where ipgroup_id='4' or ipgroup_id='8'");
    EXPECT_EQ(appended("4#8", 2), "timegroup_id='4' or timegroup_id='8'");
    EXPECT_EQ(appended("-3", 0), "id='-3'");
}

TEST(GenerateDbParams, an_empty_text_is_the_identifier_0) {
    EXPECT_EQ(appended("", 0, "where "), "where id='0'");
}

TEST(GenerateDbParams, appends_nothing_for_separators_alone) {
    EXPECT_EQ(appended("###", 0, "where "), "where ");
}

TEST(GenerateDbParams, appends_nothing_for_null) {
    char out[64] = "where ";
    EXPECT_EQ(generate_db_params(nullptr, out, sizeof(out), 0), 6U);
    EXPECT_STREQ(out, "where ");
}

TEST(GenerateDbParams, appends_nothing_for_an_unknown_column) {
    EXPECT_EQ(appended("3#7", -1, "where "), "where ");
    EXPECT_EQ(appended("3#7", 3, "where "), "where ");
}

TEST(GenerateDbParams, appends_128_terms_at_most) {
    const std::string condition = appended(list_up_to(200), 0);
    EXPECT_EQ(std::count(condition.begin(), condition.end(), '='), 128);
    EXPECT_EQ(condition.substr(condition.rfind(' ')), " id='128'");
}

TEST(GenerateDbParams, is_cut_where_the_buffer_ends) {
    const std::string whole = "where id='3' or id='7'";
    const std::string before = "where ";
    for (std::size_t size = 0; size <= whole.size() + 2; ++size) {
        const std::size_t length = std::max(before.size(), std::min(size, whole.size() + 1) - (size > 0 ? 1 : 0));
        EXPECT_EQ(appended("3#7", 0, before, size), whole.substr(0, length)) << size;
    }
}

}  // namespace
