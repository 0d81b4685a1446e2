#include <cstring>

#include <QCryptographicHash>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_text.h"
#include "ui/help_window.h"
#include "ui/main_layout.h"

namespace fundlet {

using GivenData = StartedTest;

// Each digest was taken when every text and number in it had been compared, byte by byte, with the
// texts and numbers that the program must have. A deliberate change needs a new digest.
TEST_F(GivenData, IsUnchangedInWindowsControlsAndMenus) {
  const auto digest = [](const std::string& bytes) {
    const QByteArray data = QByteArray::fromStdString(bytes);
    return QCryptographicHash::hash(data, QCryptographicHash::Md5).toHex().left(8).toStdString();
  };
  const auto set = [](const PropertyTarget& target, std::span<const Property> own) {
    return EncodePropertySet(target.Properties(), own);
  };
  std::string controls;
  for (const main_layout::ControlRow& row : main_layout::Controls()) {
    controls += set(Main()._ControlByName(row.name), main_layout::ControlProperties(row));
  }
  std::string menus;
  Main().MenuBar().ForEach([&](const MenuItem& item) {
    EXPECT_TRUE(item.AutoEnable && item.Visible) << item.Name;
    if (dynamic_cast<const QuitMenuItem*>(&item) != nullptr) menus += "quits: ";
    if (dynamic_cast<const AppleMenuItem*>(&item) != nullptr) menus += "of the application: ";
    menus += item.Name + '\n' + item.Text + '\n' + item.KeyboardShortcut + '\n' +
             std::to_string(item.Children().size()) + '\n';
  });
  user::Press("F1");
  const aHelpWindow& help = *GlobalModule::HelpWindow;
  std::string page_of_any_version = HelpText();
  page_of_any_version.erase(std::strlen("Fundlet\rVersion "), std::strlen(FUNDLET_VERSION));
  const auto given = help_layout::TextFieldProperties();
  std::vector<Property> text_field(given.begin(), given.end());
  for (Property& property : text_field) {
    if (property.name == "Text") property.value = page_of_any_version;
  }
  EXPECT_EQ(digest(set(Main(), main_layout::WindowProperties())), "6da9dabc");
  EXPECT_EQ(digest(controls), "f8ec1ebc");
  EXPECT_EQ(digest(set(help, help_layout::WindowProperties())), "db994329");
  EXPECT_EQ(digest(set(help.TextField(), text_field)), "1c422a1e");
  EXPECT_EQ(digest(set(help.DoneButton(), help_layout::DoneButtonProperties())), "38152ee8");
  EXPECT_EQ(digest(menus), "db95e6c2");
}

}  // namespace fundlet
