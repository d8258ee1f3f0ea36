#pragma once

#include "Walk.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>

/// The walk's stretches, in the order in which they are walked. Each begins where the one before
/// it ended.
namespace tessaro::demo {

/// The first start: an update is offered, the window is empty, accounts are added.
void walkAccounts(Walk& walk);
/// The road of a Page, with a bad token, a user token and a Page token.
void walkPages(Walk& walk);
/// What the inbox shows and hides, and the commands for it.
void walkInbox(Walk& walk);
/// Pictures and files go into the inbox and out of it, and links lead out of it and back.
void walkFiles(Walk& walk);
/// A video and voice messages are played, and one is recorded.
void walkMedia(Walk& walk);
/// Dark and light, and the accent "gold".
void walkTheme(Walk& walk);
/// A second start on what was stored, with Pages of every kind.
void walkSecondStart(Walk& walk);
/// The log is sent in, and links are opened.
void walkSupport(Walk& walk);

/// The names that the walk gives its accounts.
inline constexpr const char* firstAccount = "Cửa hàng hoa";
inline constexpr const char* proxyAccount = "Đại lý Đà Nẵng";
inline constexpr const char* secondAccount = "Quán cà phê";

// What the stretches share.

/// Keys that are held while another one is pressed.
inline constexpr const char* control = "Control_L";
inline constexpr const char* shift = "Shift_L";

/// The whole file; empty when there is none.
std::string readFile(const std::filesystem::path& file);
/// The records of "accounts.json" or "pages.json"; an empty array when there are none.
nlohmann::json readRecords(const Walk& walk, const char* file);
/// Opens the sheet for a new account and gives it the name.
void beginAccount(Walk& walk, const std::string& name);
/// Presses the sheet's add button and waits until the sheet is gone.
void finishAccount(Walk& walk);
/// Opens the add-Page sheet, verifies the token there and waits for the label.
void verifyToken(Walk& walk, const std::string& token, const std::string& expectedLabel);
/// Presses "Thêm Page" and waits until the sheet is gone and that many Pages are stored.
void addPage(Walk& walk, std::size_t pagesAfterwards);
/// Waits until the open page says these of how it is shown (InboxSite::view).
void expectView(const Walk& walk, const std::string& what, const nlohmann::json& wanted);
/// Clicks into the field for an answer.
void clickAnswer(const Walk& walk);
/// Goes from there back through all that can have the keyboard, to the element of that class.
void focusOn(const Walk& walk, const std::string& wanted);

} // namespace tessaro::demo
