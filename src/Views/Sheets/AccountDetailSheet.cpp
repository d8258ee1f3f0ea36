#include "Views/Sheets/AccountDetailSheet.h"

#include "Platform/Text.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Layout.h"

#include <gtkmm/grid.h>

namespace tessaro {

namespace {

/// A text field that is named by what it shows while it is empty.
void setUpField(Gtk::Entry& field, const Glib::ustring& placeholder) {
    field.set_placeholder_text(placeholder);
    field.set_activates_default();
    field.set_width_chars(1); // The sheet gives the width, not the text.
    accessible::setName(field, placeholder);
}

void addDeviceLine(Gtk::Grid& grid, int row, const Glib::ustring& title, Gtk::Label& value) {
    auto& label = textLine(title, {"secondary-text"});
    label.set_valign(Gtk::Align::START);
    value.set_xalign(0);
    value.set_hexpand();
    value.add_css_class("monospace");
    value.set_wrap();
    value.set_wrap_mode(Pango::WrapMode::CHAR);
    grid.attach(label, 0, row);
    grid.attach(value, 1, row);
}

} // namespace

AccountDetailSheet::AccountDetailSheet(const ScreenContext& context, Mode mode, OnSave onSave)
    : Sheet(
          420, 460, mode.edited ? "Chỉnh sửa tài khoản" : "Thêm tài khoản mới",
          mode.edited ? "Lưu thay đổi" : "Thêm tài khoản"),
      device_(context.device),
      mode_(std::move(mode)),
      onSave_(std::move(onSave)),
      proxySlide_(proxyRows_, std::chrono::milliseconds(200)) {
    layOutName();
    layOutDevice();
    layOutProxy();
    acceptButton().signal_clicked().connect(sigc::mem_fun(*this, &AccountDetailSheet::save));
}

void AccountDetailSheet::layOutName() {
    auto* section = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 6);
    section->append(textLine("TÊN TÀI KHOẢN", {"section-caption"}));
    setUpField(name_, "Ví dụ: Tài khoản chính");
    accessible::setName(name_, "TÊN TÀI KHOẢN");
    section->append(name_);
    content().append(*section);

    name_.signal_changed().connect(
        [this] { acceptButton().set_sensitive(!trimBlanks(name_.get_text().raw()).empty()); });
    acceptButton().set_sensitive(false);
}

void AccountDetailSheet::layOutDevice() {
    auto* section = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 6);
    section->append(textLine("THÔNG TIN THIẾT BỊ", {"section-caption"}));
    auto* box = Gtk::make_managed<Gtk::Grid>();
    box->set_css_classes({"device-box", "points-11"});
    box->set_column_spacing(8);
    box->set_row_spacing(6);
    deviceId_.set_selectable();
    addDeviceLine(*box, 0, "Device ID:", deviceId_);
    addDeviceLine(*box, 1, "Device Name:", deviceName_);
    section->append(*box);
    content().append(*section);
}

void AccountDetailSheet::layOutProxy() {
    auto* section = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL);
    auto* head = Gtk::make_managed<Gtk::Box>();
    auto& caption = textLine("CẤU HÌNH PROXY", {"section-caption"});
    caption.set_hexpand();
    proxyEnabled_.add_css_class("mini");
    proxyEnabled_.set_valign(Gtk::Align::CENTER);
    accessible::setName(proxyEnabled_, "CẤU HÌNH PROXY");
    appendAll(*head, caption, proxyEnabled_);
    appendAll(*section, *head, proxySlide_);
    content().append(*section);

    setUpField(proxyHost_, "Host (IP hoặc domain)");
    setUpField(proxyPort_, "Port");
    proxyPort_.set_size_request(80);
    proxyPort_.set_max_width_chars(1);
    setUpField(proxyUsername_, "Username (tùy chọn)");
    proxyPassword_.property_placeholder_text() = "Password";
    proxyPassword_.property_activates_default() = true;
    proxyPassword_.set_width_chars(1);
    accessible::setName(proxyPassword_, "Password");

    auto* hostRow = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 8);
    proxyHost_.set_hexpand();
    appendAll(*hostRow, proxyHost_, proxyPort_);
    auto* userRow = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 8);
    userRow->set_homogeneous();
    appendAll(*userRow, proxyUsername_, proxyPassword_);
    appendAll(proxyRows_, *hostRow, *userRow);
    proxyRows_.add_css_class("proxy-rows");

    proxyEnabled_.property_active().signal_changed().connect(
        [this] { proxySlide_.reveal(proxyEnabled_.get_active()); });
}

void AccountDetailSheet::on_show() {
    fillIn();
    Sheet::on_show();
}

void AccountDetailSheet::fillIn() {
    const std::optional<Account>& edited = mode_.edited;
    deviceId_.set_text(edited ? edited->deviceId : device_.getDeviceUUID());
    deviceName_.set_text(edited ? edited->deviceName : device_.deviceName());
    name_.set_text(edited ? edited->name : "");
    proxyHost_.set_text(edited ? edited->proxyHost : "");
    proxyPort_.set_text(edited && edited->proxyPort >= 1 ? std::to_string(edited->proxyPort) : "");
    proxyUsername_.set_text(edited ? edited->proxyUsername : "");
    proxyPassword_.set_text(edited ? edited->proxyPassword.reveal() : "");
    proxyEnabled_.set_active(edited && edited->proxyEnabled);
    name_.grab_focus();
}

void AccountDetailSheet::save() {
    onSave_(
        {.name = name_.get_text().raw(),
         .proxyHost = proxyHost_.get_text().raw(),
         .proxyPort = wholeNumber(proxyPort_.get_text().raw()).value_or(0),
         .proxyUsername = proxyUsername_.get_text().raw(),
         .proxyPassword = SecretText(proxyPassword_.get_text().raw()),
         .proxyEnabled = proxyEnabled_.get_active()});
    dismiss();
}

} // namespace tessaro
