#include "Models/Account.h"
#include "Models/PageConfig.h"
#include "Models/RecordList.h"

#include <gmock/gmock.h>

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
        .id = PageConfigId(*Uuid::parse("1AF3C2D1-00FF-4B6E-9ABC-DEF012345678")),
        .accountId = account().id,
        .pageToken = SecretText("token"),
        .pageId = PageId{"123"},
        .pageName = "Trang",
        .pageAvatarUrl = "",
        .isConnected = false,
        .createdAt = TimePoint(0s),
    };
}

constexpr const char* accountFile = R"([
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
])";

constexpr const char* pageFile = R"([
  {
    "accountId": "0AF3C2D1-00FF-4B6E-9ABC-DEF012345678",
    "createdAt": "1970-01-01T00:00:00Z",
    "id": "1AF3C2D1-00FF-4B6E-9ABC-DEF012345678",
    "isConnected": false,
    "pageAvatarUrl": "",
    "pageId": "123",
    "pageName": "Trang",
    "pageToken": "token"
  }
])";

/// Expects an error for each member that is missing, of another type or has a refused value.
template <typename Record>
void expectEveryMemberIsRequired(
    const json& good, Result<Record> (*decode)(const json&),
    const std::map<std::string, std::vector<json>>& refused = {}) {
    ASSERT_TRUE(decode(good));
    for (const auto& [key, value] : good.items()) {
        auto values = refused.contains(key) ? refused.at(key) : std::vector<json>{};
        values.insert(values.end(), {nullptr, json::array(), json::object()});
        values.push_back(value.is_string() ? json(1) : json("text"));
        auto object = good;
        for (const auto& bad : values) {
            object[key] = bad;
            EXPECT_FALSE(decode(object)) << key << " " << bad;
        }
        object.erase(key);
        EXPECT_FALSE(decode(object)) << key;
    }
}

} // namespace

TEST(Records, AreWrittenInOrderOneMemberPerLineAndReadBackWhole) {
    EXPECT_EQ(encodeList(std::vector<Account>()), "[]");
    EXPECT_EQ(encodeList(std::vector{account()}), accountFile);
    EXPECT_EQ(encodeList(std::vector{page()}), pageFile);
    EXPECT_EQ(encodeList(decodeList(accountFile, decodeAccount).value()), accountFile);
    EXPECT_EQ(encodeList(decodeList(pageFile, decodePageConfig).value()), pageFile);
}

TEST(Records, AreReadStrictly) {
    const std::vector<json> uuids{"", "x"}, times{"", "2025-03-01T09:30:05.250Z", 0};
    expectEveryMemberIsRequired<Account>(
        account(), decodeAccount,
        {{"id", uuids},
         {"createdAt", times},
         {"proxyEnabled", {0, 1}},
         {"proxyPort", {8080.0, true, std::uint64_t(1) << 63}}});
    expectEveryMemberIsRequired<PageConfig>(
        page(), decodePageConfig, {{"id", uuids}, {"accountId", uuids}, {"createdAt", times}});

    json object = account();
    object["thêm"] = json::array({1, 2});
    EXPECT_EQ(json(decodeAccount(object).value()), json(account()))
        << "unknown members are dropped";
}

TEST(Records, OneBadElementFailsTheWholeListAndNamesTheMemberOnly) {
    auto array = json::array({account(), account()});
    array[1]["proxyPassword"] = json::array({"bí mật"});
    const auto list = decodeList(array.dump(), decodeAccount);
    ASSERT_FALSE(list);
    EXPECT_THAT(list.error().message, testing::HasSubstr("proxyPassword"));
    EXPECT_THAT(list.error().message, testing::Not(testing::HasSubstr("bí mật")));
    for (const char* text : {"{}", "", "[1]", "[] []"})
        EXPECT_FALSE(decodeList(text, decodeAccount)) << text;
}

TEST(Records, HoldAnyTextWithoutThrowing) {
    auto written = account();
    written.name = std::string("a\0b\u202E\uFFFF", 9) + "\\\"" + std::string(1000, '[');
    written.deviceName = "\xFF\xC3(";
    const auto list = decodeList(encodeList(std::vector{written}), decodeAccount).value();
    EXPECT_EQ(list.at(0).name, written.name);
    EXPECT_EQ(list.at(0).deviceName, "\uFFFD\uFFFD(");
    for (const char* bad : {R"(\ud83d)", R"(\udc4d)", "\xFF", "\n"})
        EXPECT_FALSE(parseJson("\"" + std::string(bad) + "\"")) << bad;
}
