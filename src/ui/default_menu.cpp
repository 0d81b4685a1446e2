#include "ui/default_menu.h"

#include <array>
#include <memory>
#include <span>
#include <utility>

#include "desktop/base/application.h"

namespace fundlet {

namespace {

template <typename ItemClass>
std::unique_ptr<MenuItem> New() {
  return std::make_unique<ItemClass>();
}

// One item, and the names of the items it lies under, from the bar downwards.
struct ItemRow {
  std::array<const char*, 3> parents;
  const char* name;
  const char* text;
  const char* shortcut = "";
  std::unique_ptr<MenuItem> (*make)() = New<MenuItem>;
  EditCommand edits = EditCommand::None;
};

constexpr ItemRow kBeforeFile[] = {{{}, "UntitledMenu6", ""}};

constexpr ItemRow kFile[] = {
    {{}, "FileMenu", "File"},
    {{"FileMenu"}, "FileSave", "Save Schedule", "Cmd+S"},
    {{"FileMenu"}, "UntitledMenu5", "-"},
    {{"FileMenu"}, "FileParams", "Remember Parameters", "Cmd+P"},
    {{"FileMenu"}, "FileRestore", "Recall Parameters", "Cmd+R"},
    {{"FileMenu"}, "UntitledMenu4", "-"},
    {{"FileMenu"}, "FileQuit", "Quit", "Cmd+Q", New<QuitMenuItem>},
    {{"FileMenu"}, "AppAbout", "About Fundlet…", "", New<AppleMenuItem>},
    {{"FileMenu"}, "UntitledMenu12", ""},
};

constexpr ItemRow kEdit[] = {
    {{}, "EditMenu", "Edit"},
    {{"EditMenu"}, "EditUndo", "Undo", "Cmd+Z", New<MenuItem>, EditCommand::Undo},
    {{"EditMenu"}, "UntitledMenu2", "-"},
    {{"EditMenu"}, "EditCut", "Cut", "Cmd+X", New<MenuItem>, EditCommand::Cut},
    {{"EditMenu"}, "EditCopy", "Copy", "Cmd+C", New<MenuItem>, EditCommand::Copy},
    {{"EditMenu"}, "EditPaste", "Paste", "Cmd+V", New<MenuItem>, EditCommand::Paste},
    {{"EditMenu"}, "EditClear", "Clear", "", New<MenuItem>, EditCommand::Clear},
    {{"EditMenu"}, "UntitledMenu1", "-"},
    {{"EditMenu"}, "EditSurvival", "Calculate life expectancy"},
    {{"EditMenu", "EditSurvival"}, "Survival2", "when 1/2 survive", "Cmd+2"},
    {{"EditMenu", "EditSurvival", "Survival2"}, "UntitledMenu11", ""},
    {{"EditMenu", "EditSurvival"}, "Survival3", "when 1/4 survive", "Cmd+4"},
    {{"EditMenu", "EditSurvival", "Survival3"}, "UntitledMenu10", ""},
    {{"EditMenu", "EditSurvival"}, "Survival8", "when 1/8 survive", "Cmd+8"},
    {{"EditMenu", "EditSurvival", "Survival8"}, "UntitledMenu9", ""},
    {{"EditMenu", "EditSurvival"}, "UntitledMenu8", ""},
    {{"EditMenu"}, "UntitledMenu7", ""},
    {{"EditMenu"}, "UntitledMenu3", "", "", New<AppleMenuItem>},
};

constexpr ItemRow kBeforeHelp[] = {{{}, "UntitledMenu0", ""}};

constexpr ItemRow kHelp[] = {
    {{}, "HelpMenu", "Help"},
    {{"HelpMenu"}, "HelpFundlet", "Fundlet Help…"},
};

void Build(MenuBar& bar, std::span<const ItemRow> rows) {
  for (const ItemRow& row : rows) {
    std::unique_ptr<MenuItem> item = row.make();
    item->Name = row.name;
    item->AutoEnable = true;
    item->Text = row.text;
    item->Visible = true;
    item->KeyboardShortcut = row.shortcut;
    item->Edits = row.edits;
    MenuItem* parent = &bar;
    for (const char* name : row.parents) {
      if (name != nullptr) parent = &parent->Child(name);
    }
    parent->Append(std::move(item));
  }
}

}  // namespace

DefaultMenu& DefaultMenu::Instance() {
  static DefaultMenu menu;
  return menu;
}

DefaultMenu::DefaultMenu() {
  Untitled0(*this);
  Untitled1(*this);
  Untitled2(*this);
  Untitled3(*this);
  Untitled4(*this);
}

void DefaultMenu::Untitled0(MenuBar& menu) { Build(menu, kBeforeFile); }
void DefaultMenu::Untitled1(MenuBar& menu) { Build(menu, kFile); }
void DefaultMenu::Untitled2(MenuBar& menu) { Build(menu, kEdit); }
void DefaultMenu::Untitled3(MenuBar& menu) { Build(menu, kBeforeHelp); }
void DefaultMenu::Untitled4(MenuBar& menu) { Build(menu, kHelp); }

MenuItem& EditCopy() { return App().MenuBar->_Lookup("EditCopy"); }

}  // namespace fundlet
