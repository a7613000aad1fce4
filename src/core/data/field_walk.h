#pragma once

#include <stdexcept>
#include <string_view>
#include <type_traits>
#include <utility>

#include "data/fields.h"

// A record's lines walked at compile time. `visit` is called once for each
// line with the line's number as a std::integral_constant, so that what the
// line holds, its field and the field's member are constants, and a reader or
// writer built on the walk compiles to the code one would write by hand for
// that record, with no lookup in the table left at run time.

// Calls visit(line) for the lines `first` to `last`, in order.
template <int first, int last, class Visit>
constexpr void ForEachLine(Visit&& visit)
{
    [&]<int... offset>(std::integer_sequence<int, offset...>) {
        (visit(std::integral_constant<int, first + offset>{}), ...);
    }(std::make_integer_sequence<int, last - first + 1>{});
}

// The field on `line`, a Name or Number line of the layout.
template <class Record>
constexpr const Field<Record>& FieldOnLine(const RecordLayout<Record>& layout, int line)
{
    for (const Field<Record>& field : layout.fields) {
        if (field.line == line)
            return field;
    }
    throw std::logic_error("no field on this line");  // at compile time: the build stops
}

// The text of a Constant line of the layout.
template <class Record>
constexpr std::string_view ConstantOnLine(const RecordLayout<Record>& layout, int line)
{
    for (const ConstantLine& constant : layout.constants) {
        if (constant.line == line)
            return constant.text;
    }
    throw std::logic_error("no constant on this line");
}
