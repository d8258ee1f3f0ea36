#include "Views/Sheets/AccountDetailSheet.h"

#include "Platform/Text.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Layout.h"

#include <gtkmm/grid.h>

namespace tessaro {

namespace {

/// Sets up a text field whose caption stands above it: a Gtk::Entry or a Gtk::PasswordEntry.
template <typename Field>
void setUpField(Field& field, const Glib::ustring& caption, const Glib::ustring& placeholder) {
    field.property_placeholder_text() = placeholder;
    field.property_activates_default() = true;
    field.set_width_chars(1); // The sheet gives the width, not the text.
    accessible::setName(field, caption);
}

/// The field under its caption, which can be read when the field is filled, too.
Gtk::Box& captioned(Gtk::Widget& field, const Glib::ustring& caption) {
    auto& column = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL);
    appendAll(column, textLine(caption, {"points-10", "secondary-text"}), field);
    return column;
}

/// A sentence about the proxy, on as many lines as it needs.
Gtk::Label& note(const Glib::ustring& text, const char* style) {
    auto& label = textLine(text, {"points-10", style});
    label.set_wrap();
    return label;
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

bool isPort(const std::string& text) {
    const auto number = wholeNumber(text);
    return number && *number >= 1 && *number <= 65535;
}

} // namespace

AccountDetailSheet::AccountDetailSheet(const ScreenContext& context, Mode mode, OnSave onSave)
    : Sheet(
          420, 460, mode.edited ? "Chỉnh sửa tài khoản" : "Thêm tài khoản mới",
          mode.edited ? "Lưu thay đổi" : "Thêm tài khoản"),
      device_(context.device),
      desktop_(context.desktop),
      mode_(std::move(mode)),
      onSave_(std::move(onSave)),
      copyDeviceId_("doc.on.doc", 13, "Sao chép Device ID"),
      proxySlide_(proxyRows_, std::chrono::milliseconds(200)) {
    layOutName();
    layOutDevice();
    layOutProxy();
    acceptButton().signal_clicked().connect(sigc::mem_fun(*this, &AccountDetailSheet::save));
}

void AccountDetailSheet::layOutName() {
    auto* section = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 6);
    section->append(textLine("TÊN TÀI KHOẢN", {"section-caption"}));
    setUpField(name_, "TÊN TÀI KHOẢN", "Ví dụ: Tài khoản chính");
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
    copyDeviceId_.set_size_request(24, 24);
    copyDeviceId_.set_valign(Gtk::Align::START);
    copyDeviceId_.signal_clicked().connect([this] {
        desktop_.copyText(deviceId_.get_text().raw());
        copyDeviceId_.setSymbol("checkmark");
        accessible::setTooltip(copyDeviceId_, "Đã sao chép Device ID");
    });
    box->attach(copyDeviceId_, 2, 0, 1, 2);
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

    layOutProxyFields();
    proxyEnabled_.property_active().signal_changed().connect([this] {
        const bool isOn = proxyEnabled_.get_active();
        proxySlide_.reveal(isOn);
        if (isOn && proxyEnabled_.has_focus()) // The person has switched it on.
            showEnd();
    });
}

void AccountDetailSheet::layOutProxyFields() {
    setUpField(proxyHost_, "Host", "Host (IP hoặc domain)");
    setUpField(proxyPort_, "Port", "Port");
    proxyPort_.set_size_request(80);
    proxyPort_.set_max_width_chars(1);
    setUpField(proxyUsername_, "Username", "Username (tùy chọn)");
    setUpField(proxyPassword_, "Password", "Password");
    proxyPassword_.set_show_peek_icon();
    portError_.append(note("Port phải là một số từ 1 đến 65535.", "error-text"));
    portError_.property_accessible_role() = Gtk::Accessible::Role::ALERT;
    auto& unsent =
        note("Username và Password chỉ được lưu lại, không gửi cho proxy.", "secondary-text");

    auto* hostRow = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 8);
    auto& host = captioned(proxyHost_, "Host");
    host.set_hexpand();
    appendAll(*hostRow, host, captioned(proxyPort_, "Port"));
    auto* userRow = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 8);
    userRow->set_homogeneous();
    appendAll(
        *userRow, captioned(proxyUsername_, "Username"), captioned(proxyPassword_, "Password"));
    appendAll(proxyRows_, *hostRow, portError_, *userRow, unsent);
    proxyRows_.add_css_class("proxy-rows");

    proxyPort_.signal_changed().connect(sigc::mem_fun(*this, &AccountDetailSheet::checkPort));
    checkPort();
}

void AccountDetailSheet::checkPort() {
    const std::string text = proxyPort_.get_text().raw();
    const bool isWrong = !text.empty() && !isPort(text);
    if (isWrong)
        proxyPort_.add_css_class("error");
    else
        proxyPort_.remove_css_class("error");
    accessible::setInvalid(proxyPort_, isWrong);
    portError_.set_visible(isWrong);
}

bool AccountDetailSheet::onReturn(Gtk::Widget* focus) {
    return focus != &copyDeviceId_ && Sheet::onReturn(focus);
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
