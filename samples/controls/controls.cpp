// One form with every standard control: an array of check boxes tells what a list is filled with, a scroll
// bar how much of it, and two radio buttons how it is sorted.
#include <brelt.h>
#include <stdio.h>
#include <stdlib.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

// As in controls.rc.
enum : int32_t {
  IDC_TOWNS = 101,
  IDC_BYNAME = 111,
  IDC_MOST = 121,
  IDC_MOSTTEXT,
  IDC_PLACES = 131,
  IDC_NAME,
  IDC_KIND,
  IDC_ADD,
  IDC_FILL = 141,
  IDC_SORT,
  IDC_EMPTY
};
constexpr const char* kForm = "Controls";
constexpr int32_t kWholeList = 0x7FFFFFFF;

// A place's kind is the index of its check box in the array.
struct Place {
  int32_t kind;
  const char* name;
  int number;
};
constexpr Place kPlaces[] = {{1, "Lisbon", 567131},     {1, "Oslo", 717710},       {1, "Vienna", 2005760},
                             {2, "Tagus", 1007},        {2, "Danube", 2850},       {2, "Glomma", 621},
                             {3, "Pico", 2351},         {3, "Galdhopiggen", 2469}, {3, "Rax", 2007},
                             {3, "Grossglockner", 3798}};
constexpr const char* kKinds[] = {"town", "river", "mountain"};

bool IsOn(int32_t id) {
  int32_t value = 0;
  GetValue(kForm, id, &value);
  return value == 1;
}

// A line of three columns; AlignItems sees to it that they stand below each other.
void AddPlace(const char* name, int32_t kind, int number) {
  char line[200];
  snprintf(line, sizeof line, "%s\t%s\t%d", name, kKinds[kind - 1], number);
  AddItem(kForm, IDC_PLACES, -1, line, nullptr);
}

// Fills the list with places of the kinds whose check boxes are on.
void Fill() {
  int32_t last = 0;
  int32_t most = 0;
  ControlUbound(kForm, IDC_TOWNS, &last);
  GetValue(kForm, IDC_MOST, &most);
  Clear(kForm, IDC_PLACES);
  for (int32_t kind = 1; kind <= last; ++kind) {
    int32_t box = 0;
    int32_t left = most;
    Controlarray(kForm, IDC_TOWNS, kind, &box);
    if (!IsOn(box)) continue;
    for (const Place& place : kPlaces) {
      if (place.kind == kind && left-- > 0) AddPlace(place.name, place.kind, place.number);
    }
  }
  AlignItems(kForm, IDC_PLACES);
}

// Takes the items out, sorts them by what the radio buttons say, and puts them back as one text.
void Sort() {
  int32_t count = 0;
  int32_t order = 0;
  GetListCount(kForm, IDC_PLACES, &count);
  Controlselectionpos(kForm, IDC_BYNAME, &order);
  std::vector<std::string> lines;
  for (int32_t index = 1; index <= count; ++index) {
    char line[200];
    GetList(kForm, IDC_PLACES, index, line, sizeof line, "String");
    lines.push_back(line);
  }
  const auto number = [](const std::string& line) { return atoi(line.c_str() + line.rfind('\t') + 1); };
  std::sort(lines.begin(), lines.end(), [&](const std::string& a, const std::string& b) {
    return order == 2 ? number(a) < number(b) : a < b;
  });
  // The whole list as one text would lose the tabs.
  Clear(kForm, IDC_PLACES);
  for (const std::string& line : lines) AddItem(kForm, IDC_PLACES, -1, line.c_str(), nullptr);
}

void AddOwn() {
  char name[100];
  int32_t kind = 0;
  GetText(kForm, IDC_NAME, name, sizeof name);
  GetListIndex(kForm, IDC_KIND, &kind);
  if (name[0] != '\0' && kind > 0) AddPlace(name, kind, 0);
  SetText(kForm, IDC_NAME, "");
}

void ShowMost() {
  char text[8];
  int32_t most = 0;
  GetValue(kForm, IDC_MOST, &most);
  snprintf(text, sizeof text, "%d", static_cast<int>(most));
  SetCaption(kForm, IDC_MOSTTEXT, text);
}

void SetUp() {
  SetList(kForm, IDC_KIND, kWholeList, "town\nriver\nmountain\n", "String");
  SetListIndex(kForm, IDC_KIND, 1);
  for (int32_t box = IDC_TOWNS; box < IDC_TOWNS + 3; ++box) SetValue(kForm, box, 1);
  SetValue(kForm, IDC_BYNAME, 1);
  SetMax(kForm, IDC_MOST, 4);
  SetMin(kForm, IDC_MOST, 1);
  SetValue(kForm, IDC_MOST, 4);
  ShowMost();
}

void OnClick(int32_t id) {
  switch (id) {
    case IDOK:
      Unload(kForm);
      break;
    case IDC_ADD:
      AddOwn();
      break;
    case IDC_FILL:
      Fill();
      break;
    case IDC_SORT:
      Sort();
      break;
    case IDC_EMPTY:
      Clear(kForm, IDC_PLACES);
      break;
    default:
      break;
  }
}

int32_t __stdcall OnEvent(HWND, uint32_t event, uint32_t wParam, int32_t lParam) {
  printf("event %u, wParam %u, lParam %d\n", unsigned(event), unsigned(wParam), int(lParam));
  if (event == EV_LOAD) SetUp();
  if (event == EV_CLICK) OnClick(static_cast<int32_t>(wParam));
  if (event == EV_CHANGE && wParam == IDC_MOST) ShowMost();
  return 0;
}

}  // namespace

int main() {
  setvbuf(stdout, nullptr, _IONBF, 0);
  HINSTANCE instance = GetModuleHandleA(nullptr);
  HWND form = nullptr;
  char message[256];
  const int32_t code = Load(instance, kForm, "controls.rc", OnEvent, &form, nullptr, message, sizeof message);
  if (code != RTX_OK) return printf("%d: %s\n", int(code), message), 1;
  AppIcon(instance, "controls.ico");
  return MainLoop(instance, form, nullptr, nullptr);
}
