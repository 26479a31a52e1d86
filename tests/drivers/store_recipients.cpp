// SPDX-License-Identifier: Apache-2.0
// Stores fax recipients in the address book: standard input is a property list, an array of
// recipients in ticket form; the argument names a group to put them into.
#include <cstdio>
#include <fstream>
#include <iterator>

#include "Platform/PropertyList.h"
#include "Source/Fax.h"

int main(int argc, char** argv) {
  std::ifstream input("/dev/stdin");
  const std::string text{std::istreambuf_iterator<char>(input), {}};
  zarvo::Value list;
  if (argc != 2 || !zarvo::ParsePropertyList(text, &list).empty() || list.AsArray() == nullptr)
    return 2;
  zarvo::FaxRecipientList recipients(*list.AsArray());
  if (!recipients.saveAsABGroupWithName(argv[1])) return 1;
  for (std::size_t i = 0; i < recipients.count(); ++i)
    std::puts(recipients.recipientAtIndex(i)->uid()->c_str());
  return 0;
}
