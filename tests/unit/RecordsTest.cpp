#include "Models/Account.h"
#include "Models/CustomerProfile.h"
#include "Models/MessageTemplate.h"
#include "Models/PageConfig.h"
#include "Models/PageInfo.h"
#include "Models/RecordList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessaro;
using namespace std::chrono_literals;
using nlohmann::json;

namespace {

Account account() {
    return {
        .id = AccountId(*Uuid::parse("0AF3C2D1-00FF-4B6E-9ABC-DEF012345678")),
        .name = "Cửa hàng 👩‍👩‍👧 \"A\"",
        .proxyHost = "proxy.example",
        .proxyPort = -1,
        .proxyUsername = "",
        .proxyPassword = SecretText("mật khẩu"),
        .proxyEnabled = true,
        .deviceId = "device",
        .deviceName = "Máy tính",
        .createdAt = TimePoint(1'740'821'405s) + 250ms,
    };
}

PageConfig page() {
    return {
        .id = PageConfigId::random(),
        .accountId = account().id,
        .pageToken = SecretText("token"),
        .pageId = PageId{"123"},
        .pageName = "Trang",
        .pageAvatarUrl = "",
        .isConnected = false,
        .createdAt = TimePoint(0s),
    };
}

/// Every single change of a member that a strict reader must refuse.
template <typename Record>
void expectEveryMemberIsRequired(
    const json& good, Result<Record> (*decode)(const json&),
    const std::map<std::string, std::vector<json>>& refused) {
    ASSERT_TRUE(decode(good));
    for (const auto& [key, value] : good.items()) {
        auto values = refused.contains(key) ? refused.at(key) : std::vector<json>{};
        values.insert(values.end(), {nullptr, json::array(), json::object()});
        values.push_back(value.is_string() ? json(1) : json("text"));
        for (const auto& bad : values) {
            auto object = good;
            object[key] = bad;
            EXPECT_FALSE(decode(object)) << key << " " << bad;
        }
        auto object = good;
        object.erase(key);
        EXPECT_FALSE(decode(object)) << key;
    }
}

} // namespace

TEST(Records, AccountKeepsEveryFieldButTheFractionOfASecond) {
    const auto list = decodeList(encodeList(std::vector{account()}), decodeAccount);
    ASSERT_TRUE(list);
    const auto& read = list->at(0);
    const auto written = account();
    EXPECT_EQ(read, written);
    EXPECT_EQ(read.name, written.name);
    EXPECT_EQ(read.proxyHost, written.proxyHost);
    EXPECT_EQ(read.proxyPort, written.proxyPort);
    EXPECT_EQ(read.proxyUsername, written.proxyUsername);
    EXPECT_EQ(read.proxyPassword, written.proxyPassword);
    EXPECT_EQ(read.proxyEnabled, written.proxyEnabled);
    EXPECT_EQ(read.deviceId, written.deviceId);
    EXPECT_EQ(read.deviceName, written.deviceName);
    EXPECT_EQ(read.createdAt, written.createdAt - 250ms);
}

TEST(Records, AccountFileHasItsMembersInOrderOnePerLine) {
    EXPECT_EQ(encodeList(std::vector<Account>()), "[]");
    EXPECT_EQ(encodeList(std::vector{account()}), R"([
  {
    "createdAt": "2025-03-01T09:30:05Z",
    "deviceId": "device",
    "deviceName": "Máy tính",
    "id": "0AF3C2D1-00FF-4B6E-9ABC-DEF012345678",
    "name": "Cửa hàng 👩‍👩‍👧 \"A\"",
    "proxyEnabled": true,
    "proxyHost": "proxy.example",
    "proxyPassword": "mật khẩu",
    "proxyPort": -1,
    "proxyUsername": ""
  }
])");
}

TEST(Records, PageKeepsEveryField) {
    const auto written = page();
    const auto read = decodePageConfig(encode(written));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->id, written.id);
    EXPECT_EQ(encode(*read), encode(written));
}

TEST(Records, AreTheSameByIdentifierAlone) {
    auto edited = account();
    edited.name = "khác";
    EXPECT_EQ(edited, account());
    EXPECT_EQ(std::hash<Account>{}(edited), std::hash<Account>{}(account()));
    auto other = page(), renamed = other;
    renamed.pageName = "khác";
    EXPECT_EQ(renamed, other);
    EXPECT_EQ(std::hash<PageConfig>{}(renamed), std::hash<PageConfig>{}(other));
    EXPECT_FALSE(page() == page());
}

TEST(Records, ReadStrictly) {
    const std::vector<json> uuids{"", "x", "0AF3C2D1-00FF-4B6E-9ABC-DEF01234567"};
    const std::vector<json> times{"", "2025-03-01T09:30:05.250Z", "2025-02-30T00:00:00Z", 0};
    expectEveryMemberIsRequired<Account>(
        encode(account()), decodeAccount,
        {{"id", uuids},
         {"createdAt", times},
         {"proxyEnabled", {0, 1, "true"}},
         {"proxyPort",
          {8080.0, "8080", true, std::uint64_t(1) << 63, json::parse("18446744073709551616"),
           json::parse("-9223372036854775809"), json::parse("1e3")}}});
    expectEveryMemberIsRequired<PageConfig>(
        encode(page()), decodePageConfig,
        {{"id", uuids}, {"accountId", uuids}, {"createdAt", times}});
    expectEveryMemberIsRequired<MessageTemplate>(
        encode(MessageTemplate{"chào", "xin chào"}), decodeMessageTemplate, {});
}

TEST(Records, TakeTheWholeRangeOfAPort) {
    auto object = encode(account());
    for (const char* number : {"9223372036854775807", "-9223372036854775808"}) {
        object["proxyPort"] = json::parse(number);
        const auto read = decodeAccount(object);
        ASSERT_TRUE(read);
        EXPECT_EQ(std::to_string(read->proxyPort), number);
    }
}

TEST(Records, IgnoreUnknownMembersAndForgetThem) {
    auto object = encode(account());
    object["Name"] = 1;
    object["thêm"] = json::array({1, 2});
    const auto read = decodeAccount(object);
    ASSERT_TRUE(read);
    EXPECT_EQ(encode(*read), encode(*decodeAccount(encode(account()))));
}

TEST(Records, OneBadElementFailsTheWholeListAndNamesTheMemberOnly) {
    auto array = json::array({encode(account()), encode(account())});
    array[1]["proxyPassword"] = json::array({"bí mật"});
    const auto list = decodeList(array.dump(), decodeAccount);
    ASSERT_FALSE(list);
    EXPECT_THAT(list.error().message, testing::HasSubstr("proxyPassword"));
    EXPECT_THAT(list.error().message, testing::Not(testing::HasSubstr("bí mật")));
    EXPECT_FALSE(decodeList("{}", decodeAccount));
    EXPECT_FALSE(decodeList("", decodeAccount));
    EXPECT_FALSE(decodeList("[1]", decodeAccount));
    EXPECT_FALSE(decodeList("[] []", decodeAccount));
}

TEST(Records, HoldAnyTextWithoutThrowing) {
    auto written = account();
    written.name = std::string("a\0b\u202E\uFFFF", 9);
    written.deviceName = "\xFF\xC3(";
    const auto list = decodeList(encodeList(std::vector{written}), decodeAccount);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->at(0).name, written.name);
    EXPECT_EQ(list->at(0).deviceName, "\uFFFD\uFFFD(");
    const auto escaped = [](std::string title) {
        return decodeList(R"([{"content":"","title":")" + title + R"("}])", decodeMessageTemplate);
    };
    EXPECT_EQ(escaped(R"(a\u0000b)").value().at(0).title, std::string("a\0b", 3));
    EXPECT_EQ(escaped(R"(\ud83d\udc4d)").value().at(0).title, "👍");
    for (const char* bad :
         {R"(\ud83d)", R"(\udc4d)", R"(\ud83d\ud83d)", R"(\ud83dx)", "\xFF", "\n"})
        EXPECT_FALSE(escaped(bad)) << bad;
}

TEST(Records, CustomerProfileLeavesAbsentFieldsOut) {
    EXPECT_EQ(encode(CustomerProfile{.id = "x"}).dump(), R"({"id":"x"})");
    const auto read = decodeCustomerProfile(json::parse(R"({"id":"x","tags":null,"name":""})"));
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->tags);
    EXPECT_EQ(read->name, "");
    EXPECT_FALSE(read->phone);
    EXPECT_FALSE(decodeCustomerProfile(json::parse(R"({"name":"x"})")));
    EXPECT_FALSE(decodeCustomerProfile(json::parse(R"({"id":"x","phone":5})")));
    EXPECT_FALSE(decodeCustomerProfile(json::parse(R"({"id":"x","tags":["a",1]})")));
    EXPECT_FALSE(decodeCustomerProfile(json::parse(R"({"id":"x","tags":"a"})")));

    const CustomerProfile full{"1", "a", "b", "c", "d", "e", "f", std::vector<std::string>{"g"}};
    EXPECT_EQ(decodeCustomerProfile(encode(full)), full);
}

TEST(Records, CustomerProfileIsComparedAndHashedByAllFields) {
    const std::hash<CustomerProfile> hash;
    const CustomerProfile bare{.id = "x"};
    const std::vector<CustomerProfile> others{
        {.id = "y"},
        {.id = "x", .name = ""},
        {.id = "x", .phone = ""},
        {.id = "x", .notes = ""},
        {.id = "x", .tags = std::vector<std::string>{}},
        {.id = "x", .tags = std::vector<std::string>{"a", "b"}},
        {.id = "x", .tags = std::vector<std::string>{"b", "a"}}};
    for (const auto& other : others) {
        EXPECT_FALSE(other == bare);
        EXPECT_NE(hash(other), hash(bare));
    }
    EXPECT_NE(hash(others[5]), hash(others[6]));
    EXPECT_NE(hash(others[1]), hash(others[2]));
    EXPECT_EQ(hash(CustomerProfile{.id = "x"}), hash(bare));
    EXPECT_NE(std::hash<MessageTemplate>{}({"a", "b"}), std::hash<MessageTemplate>{}({"b", "a"}));
}

TEST(Records, PageInfoNeedsTheAddressOfAPictureThatIsPresent) {
    const auto decode = [](const char* text) { return decodePageInfo(json::parse(text)); };
    const auto plain = decode(R"({"id":"1","name":"A","picture":null})");
    ASSERT_TRUE(plain);
    EXPECT_FALSE(plain->picture);
    EXPECT_EQ(
        decode(R"({"id":"1","name":"A","picture":{"data":{"url":"u","width":1}}})")->picture,
        PagePicture{{"u"}});
    EXPECT_FALSE(decode(R"({"id":1,"name":"A"})"));
    EXPECT_FALSE(decode(R"({"id":"1"})"));
    EXPECT_FALSE(decode(R"({"id":"1","name":"A","picture":{}})"));
    EXPECT_FALSE(decode(R"({"id":"1","name":"A","picture":{"data":{}}})"));
    EXPECT_FALSE(decode(R"({"id":"1","name":"A","picture":[]})"));
}
