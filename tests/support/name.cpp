#include "tests/support/name.h"

#include <algorithm>
#include <stdexcept>

namespace test {
namespace {

// Takes the ending off a text that has it.
bool Take(std::string_view& text, std::string_view ending) {
  if (!text.ends_with(ending)) return false;
  text.remove_suffix(ending.size());
  return true;
}

// What follows the last underscore, which is taken off with it.
std::string_view TakeLast(std::string_view& text) {
  const size_t last = text.rfind('_');
  if (last == std::string_view::npos) return {};
  const std::string_view part = text.substr(last + 1);
  text = text.substr(0, last);
  return part;
}

bool IsLayout(std::string_view text) {
  return text.starts_with('C') || text.starts_with('P') || text.starts_with("AC4") || text.starts_with("AP4");
}

// Of the pixels that the layout begins with, as in C3AC4.
int ChannelsOf(std::string_view layout) { return layout[layout.find_first_of("1234")] - '0'; }

struct Member {
  const Export* function;
  Name name;
};

// The functions whose names have a layout.
const std::vector<Member>& Members() {
  static const std::vector<Member> all = [] {
    std::vector<Member> members;
    for (const Export& function : Exports()) {
      Name name(function.name);
      if (!name.layout.empty()) members.push_back({&function, std::move(name)});
    }
    return members;
  }();
  return all;
}

std::vector<const Export*> Select(std::initializer_list<std::string_view> parts, std::string Name::*part) {
  std::vector<const Export*> found;
  for (const Member& member : Members()) {
    if (std::count(parts.begin(), parts.end(), member.name.*part) != 0) found.push_back(member.function);
  }
  EXPECT_FALSE(found.empty()) << *parts.begin();
  return found;
}

}  // namespace

Name::Name(std::string_view name) {
  if (name.starts_with("qvpi")) name.remove_prefix(4);
  family = name.substr(0, name.find('_'));
  isWide = Take(name, "_L");
  const bool isVolume = name.starts_with("qvpr");
  if (isVolume ? !Take(name, "PV") && !Take(name, "V") : !Take(name, "RSfs") && !Take(name, "Rs") && !Take(name, "R"))
    return;
  inPlace = Take(name, "I");
  isMasked = Take(name, "M");
  const std::string_view last = TakeLast(name);
  if (!IsLayout(last)) return;
  layout = last;
  type = TakeLast(name);
  operation = name;
  channels = ChannelsOf(layout);
  written = layout == "AC4" ? 3 : channels;
}

const Element& Name::From() const { return ElementOf(type); }

const Element& Name::To() const {
  std::string_view rest = type;
  const Element* const from = TakeElement(rest);
  const Element* const to = TakeElement(rest);
  return to ? *to : *from;
}

std::vector<const Export*> FunctionsOf(std::initializer_list<std::string_view> operations) {
  return Select(operations, &Name::operation);
}

std::vector<const Export*> FamilyOf(std::initializer_list<std::string_view> families) {
  return Select(families, &Name::family);
}

const Export& FunctionOf(std::string_view operation, const Element& element, int channels) {
  for (const Export* function : FunctionsOf({operation})) {
    const Name name(function->name);
    if (name.type == element.name && name.channels == channels && !name.isWide) return *function;
  }
  throw std::invalid_argument(std::string(operation));
}

}  // namespace test
