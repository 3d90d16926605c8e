// SPDX-License-Identifier: MIT
// writeRecords FILE: the types in QML of composed records, each field as a property of its name. Qt's own tools read
// the file like any header, so QML is checked against the fields.
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

#include "app/bridge/ShownRecords.h"
#include "mivo/store/Names.h"

namespace mivo::app {
namespace {

/// "mivo::host::FastSheet", as the compiler spells it.
template <class Shown>
std::string fullName() {
  const std::string_view pretty = __PRETTY_FUNCTION__;
  const auto begin = pretty.find("Shown = ") + 8;
  return std::string{pretty.substr(begin, pretty.find_first_of(";]", begin) - begin)};
}

/// "FastSheetRecord".
template <class Shown>
std::string recordName() {
  return std::string{typeName<Shown>()} + "Record";
}

/// As moc reads it.
template <class Field>
std::string propertyType() {
  if constexpr (isOptional<Field>)
    return propertyType<typename Field::value_type>();
  else if constexpr (std::same_as<Field, bool>)
    return "bool";
  else if constexpr (std::integral<Field>)
    return "int";
  else if constexpr (std::floating_point<Field> || std::same_as<Field, Date>)
    return "double";
  else if constexpr (ValueRecord<Field>)
    return "mivo::app::" + recordName<Field>();
  else if constexpr (RowsField<Field>)
    return "mivo::app::RecordRows*";
  else if constexpr (ListField<Field>)
    return "QList<" + propertyType<ElementOf<Field>>() + '>';
  else
    return "QString";
}

template <class Shown>
void writeValue(std::ostream& out) {
  const std::string name = recordName<Shown>();
  std::ostringstream properties, members;
  const Shown record{};
  fields(record, [&]<class Field>(std::string_view field, const Field&) {
    const std::string type = propertyType<Field>();
    properties << "  Q_PROPERTY(" << type << ' ' << field << " MEMBER " << field << ")\n";
    members << "  " << type << ' ' << field << "{};\n";
  });
  std::string qmlName = name;
  qmlName.front() = static_cast<char>(qmlName.front() - 'A' + 'a');
  out << "\nstruct " << name << " {\n  Q_GADGET\n  QML_VALUE_TYPE(" << qmlName << ")\n"
      << properties.str() << "\n public:\n"
      << members.str() << "  bool operator==(const " << name << "&) const = default;\n};\n\n"
      << "template <>\nstruct ValueFor<" << fullName<Shown>() << "> {\n  using Type = " << name << ";\n};\n";
}

template <class Field>
void writeRows(std::ostream& out, std::string_view field) {
  out << "  RecordRows* const " << field << " = new RecordRows{rolesOf<" << fullName<ElementOf<Field>>()
      << ">(), this};\n";
}

template <class Shown>
void writeObject(std::ostream& out) {
  const std::string name = recordName<Shown>(), composed = fullName<Shown>();
  std::ostringstream properties, changes, members;
  const Shown record{};
  fields(record, [&]<class Field>(std::string_view field, const Field&) {
    const std::string type = propertyType<Field>();
    properties << "  Q_PROPERTY(" << type << ' ' << field << " MEMBER " << field;
    if constexpr (RowsField<Field>) {
      properties << " CONSTANT)\n";
      writeRows<Field>(members, field);
    } else {
      properties << " NOTIFY " << field << "Changed)\n";
      changes << "  void " << field << "Changed();\n";
      members << "  " << type << ' ' << field << "{};\n";
    }
  });
  out << "\nclass " << name << " : public QObject {\n  Q_OBJECT\n  QML_ELEMENT\n  QML_UNCREATABLE(\"composed\")\n"
      << properties.str() << "\n public:\n  using QObject::QObject;\n"
      << "  void show(const " << composed << "& composed) { carry(composed, *this); }\n\n Q_SIGNALS:\n"
      << changes.str() << "\n protected:\n"
      << members.str() << "};\n\ntemplate <>\nstruct ObjectFor<" << composed << "> {\n  using Type = " << name
      << ";\n};\n";
}

template <class... Values, class... Objects>
void writeAll(std::ostream& out, RecordList<Values...>, RecordList<Objects...>) {
  out << "#pragma once\n\n#include <QtQml/qqmlregistration.h>\n\n#include \"app/bridge/Carry.h\"\n\nnamespace "
         "mivo::app {\n";
  (writeValue<Values>(out), ...);
  (writeObject<Objects>(out), ...);
  out << "\n}  // namespace mivo::app\n";
}

}  // namespace
}  // namespace mivo::app

int main(int count, char** arguments) {
  if (count != 2) return 2;
  std::ostringstream text;
  mivo::app::writeAll(text, mivo::app::ValueRecords{}, mivo::app::ObjectRecords{});
  std::ifstream before{arguments[1]};
  if (std::string{std::istreambuf_iterator<char>{before}, {}} == text.str()) return 0;  // what it made need not be new
  std::ofstream file{arguments[1]};
  file << text.str();
  return file.flush() ? 0 : 1;
}
