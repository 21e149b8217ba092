#!/usr/bin/env bash
# Makes the reference in docs/reference from the comments of include/brelt.h: a page for each family of functions, a
# page of all failure codes, and a list of all functions.
#   scripts/reference.sh [--check]
# --check changes nothing; it fails when the pages aren't what the header says.
#
# What the header must look like:
#   /* ==== Family ==== */         begins a family and its page. A comment that no declaration follows introduces it.
#   /* What the function does.     The comment ahead of a declaration. An empty comment line begins a new paragraph.
#    * Codes: 756, 727 for id 0.   Of functions that return a failure code: all of them, with conditions where a code
#    *                             needs one. Their names are added from include/events.h.
#    * Example:                    One or a few lines of C, two blanks further in. They are compiled: what they don't
#    *   IsModal("Main", &modal);  declare themselves stands in examples_begin below.
#    */
#   BRELT_API(result) Name(type argument, ...);
# Each export of brelt.def must have an entry with an example.
. "$(dirname "$0")/lib.sh"
check=0
[ "${1:-}" != --check ] || check=1
header=include/brelt.h
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/pages"

# The names that all examples share.
examples_begin() {
  cat <<'C'
#include "brelt.h"
enum {
  IDC_NAME = 101, IDC_LIST, IDC_COMBO, IDC_CHECK, IDC_RADIO = 106, IDC_SCROLL, IDC_SHAPE, IDC_IMAGE, IDC_LABEL,
  IDM_SAVE = 201, IDM_TOOLBAR
};
extern HMODULE instance;
extern HWND form;
extern const char *tokens;
extern const void *picture;
extern char *rows[256], *menuRows[256];
extern char error[256];
int32_t __stdcall OnEvent(HWND window, uint32_t event, uint32_t wParam, int32_t lParam);
C
}

# ---- The pages ----

examples_begin >"$work/examples.c"
awk -v pages="$work/pages" -v examples="$work/examples.c" '
  function fail(text) { print text > "/dev/stderr"; failed = 1 }

  # What text can hold without being taken for a mark of the page.
  function escaped(text) {
    gsub(/&/, "\\&amp;", text)
    gsub(/</, "\\&lt;", text)
    gsub(/\*/, "\\*", text)
    return text
  }
  # Each number of a code with its name behind it.
  function with_code_names(text,    result) {
    while (match(text, /[79][0-9][0-9]/)) {
      number = substr(text, RSTART, RLENGTH)
      if (!(number in code_name)) fail(name ": " number " is no failure code")
      result = result substr(text, 1, RSTART - 1) number " `" code_name[number] "`"
      text = substr(text, RSTART + RLENGTH)
    }
    return result text
  }
  function words_of_type(type) {
    if (type == "const char*") return "text"
    if (type == "char*") return "buffer for a text"
    if (type == "int32_t" || type == "uint32_t") return "number"
    if (type == "int32_t*" || type == "uint32_t*") return "pointer to a number"
    if (type == "const uint32_t*") return "array of numbers"
    if (type == "uint8_t") return "truth value"
    if (type == "uint8_t*") return "pointer to a truth value"
    if (type == "char") return "character"
    if (type == "HWND") return "window"
    if (type == "HWND*") return "pointer to a window"
    if (type == "HMODULE") return "module"
    if (type == "EventFunction") return "function of the program"
    if (type == "const void*") return "data"
    if (type == "void*") return "buffer"
    return ""
  }

  function begin_family(title) {
    family = title
    slug = tolower(title)
    gsub(/[^a-z0-9]+/, "-", slug)
    page = pages "/" slug ".md"
    printf "# %s\n", title > page
    families[++family_count] = title
    slugs[family_count] = slug
  }
  function write_paragraphs(from, to,    i) {
    for (i = from; i <= to; ++i) print escaped(comment[i]) > page
  }
  function write_introduction() {
    if (page == "" || comment_lines == 0) return
    print "" > page
    write_paragraphs(1, comment_lines)
  }

  # What an id can be depends on the family.
  function words_of_id() {
    if (family == "Menus") return "number of the menu item"
    if (family == "Arrays, lists and groups") return "number of the control or menu item"
    return "number of the control or menu item, 0 for the window"
  }
  # What an argument is: by its name where that has one meaning everywhere, otherwise by its type.
  function words_of_argument(argument, type, first, previous) {
    if (argument == "name" && first == "name") return "text, the name of the object"
    if (argument == "id" && first == "name") return words_of_id()
    if (argument ~ /[sS]ize$/ && previous ~ /^(char|void)\*$/) return "bytes of the buffer"
    return words_of_type(type)
  }
  function write_arguments(text,    parts, count, i, type, argument, first, previous) {
    if (text == "void" || text == "") return
    print "\n| Argument | Type | |\n|---|---|---|" > page
    count = split(text, parts, /, */)
    for (i = 1; i <= count; ++i) {
      match(parts[i], /[A-Za-z0-9_]+$/)
      argument = substr(parts[i], RSTART)
      type = substr(parts[i], 1, RSTART - 1)
      sub(/ +$/, "", type)
      if (i == 1) first = argument
      printf "| `%s` | `%s` | %s |\n", argument, type, words_of_argument(argument, type, first, previous) > page
      previous = type
    }
  }

  # A declaration in lines of readable length.
  function write_declaration(text,    parts, count, i, line) {
    count = split(text, parts, /, /)
    line = parts[1]
    for (i = 2; i <= count; ++i) {
      line = line ","
      if (length(line) + length(parts[i]) > 100) {
        print line > page
        line = "   "
      }
      line = line " " parts[i]
    }
    print line > page
  }
  function write_entry(declaration,    rest, result, name_end, prose_end, i, line, in_example, codes, example) {
    rest = declaration
    sub(/^BRELT_API\(/, "", rest)
    result = substr(rest, 1, index(rest, ")") - 1)
    rest = substr(rest, index(rest, ")") + 1)
    sub(/^ +/, "", rest)
    name_end = index(rest, "(")
    name = substr(rest, 1, name_end - 1)
    rest = substr(rest, name_end + 1)
    sub(/\);.*/, "", rest)
    if (page == "") fail(name " stands in no family")
    if (comment_lines == 0) fail(name " has no comment")

    prose_end = comment_lines
    part = "prose"
    for (i = 1; i <= comment_lines; ++i) {
      line = comment[i]
      if (line ~ /^Codes:/) {
        if (part == "prose") prose_end = i - 1
        part = "codes"
        sub(/^Codes: */, "", line)
      } else if (line ~ /^Example:/) {
        if (part == "prose") prose_end = i - 1
        part = "example"
        sub(/^Example: */, "", line)
        if (line == "") continue
      }
      if (part == "codes") codes = codes (codes == "" ? "" : "\n") line
      if (part == "example") {
        sub(/^  /, "", line)
        example = example line "\n"
      }
    }
    while (prose_end > 0 && comment[prose_end] == "") --prose_end
    sub(/\n+$/, "\n", example)

    printf "\n## %s\n\n```c\n", name > page
    write_declaration(result " __stdcall " name "(" rest ");")
    print "```\n" > page
    write_paragraphs(1, prose_end)
    write_arguments(rest)
    if (codes != "") printf "\nCodes: %s\n", with_code_names(escaped(codes)) > page
    if (example != "") {
      printf "\n```c\n%s```\n", example > page
      printf "LRESULT Example_%s(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {\n  {\n%s  }\n}\n",
             name, example >> examples
      entry[name] = slug
    }
    functions[++function_count] = name
    function_family[function_count] = family_count
  }

  # A comment line without its marks.
  function stripped(line) {
    sub(/^\/\* ?/, "", line)
    sub(/^ \* ?/, "", line)
    sub(/ *\*\/ *$/, "", line)
    return line
  }

  # The codes and what they mean.
  FILENAME == "include/events.h" {
    if (match($0, /RTX_[A-Z_]+ = [0-9]+/)) {
      split(substr($0, RSTART, RLENGTH), pair, / = /)
      meaning = $0
      sub(/.*\/\* /, "", meaning)
      sub(/ \*\/.*/, "", meaning)
      if (pair[2] == 0) next
      code_name[pair[2]] = pair[1]
      code_rows = code_rows "| " pair[2] " | `" pair[1] "` | " escaped(meaning) " |\n"
    }
    next
  }
  # What brelt.def exports, by the names of the functions.
  FILENAME == "brelt.def" {
    if ($0 ~ /^ +[^ ]+ *=/) {
      symbol = $0
      sub(/.*= */, "", symbol)
      sub(/@.*/, "", symbol)
      exported[++export_count] = symbol
    }
    next
  }

  /^\/\* ==== .* ==== \*\/$/ {
    title = $0
    sub(/^\/\* ==== /, "", title)
    sub(/ ==== \*\/$/, "", title)
    comment_lines = 0
    begin_family(title)
    next
  }
  /^\/\*/ {
    write_introduction()
    comment_lines = 0
    in_comment = 1
  }
  in_comment {
    comment[++comment_lines] = stripped($0)
    if ($0 ~ /\*\/ *$/) in_comment = 0
    if (!in_comment && comment[comment_lines] == "") --comment_lines
    next
  }
  /^BRELT_API\(/ { declaration = "" ; in_declaration = 1 }
  in_declaration {
    line = $0
    sub(/^ +/, "", line)
    declaration = declaration (declaration == "" ? "" : " ") line
    if (line ~ /;/) {
      in_declaration = 0
      write_entry(declaration)
      comment_lines = 0
    }
    next
  }
  # Any other code takes the comment ahead of it.
  NF > 0 { comment_lines = 0 }

  END {
    for (i = 1; i <= export_count; ++i) {
      if (!(exported[i] in entry)) fail("the export " exported[i] " has no entry with an example")
    }
    page = pages "/codes.md"
    printf "# Failure codes\n\n0 is success.\n\n| Code | Name | Condition |\n|---|---|---|\n%s", code_rows > page
    page = pages "/README.md"
    print "# Reference\n" > page
    print "The functions of brelt.dll by family, and the [failure codes](codes.md) that they return. The pages are" > page
    print "made from the comments of include/brelt.h by scripts/reference.sh. In the examples `instance` is the" > page
    print "program\047s module, `form` a window\047s handle and `OnEvent` its event function; names such as `IDC_LIST` are" > page
    print "ids of the program." > page
    for (i = 1; i <= family_count; ++i) {
      printf "\n## [%s](%s.md)\n\n", families[i], slugs[i] > page
      for (j = 1; j <= function_count; ++j) {
        if (function_family[j] != i) continue
        anchor = tolower(functions[j])
        printf "- [%s](%s.md#%s)\n", functions[j], slugs[i], anchor > page
      }
    }
    exit failed
  }' include/events.h brelt.def "$header" || die "the header isn't as it must be"

# ---- The examples ----

i686-w64-mingw32-gcc-posix -std=c99 -fsyntax-only -Werror -I include "$work/examples.c" \
  || die "examples in the header don't compile"

if [ $check -eq 1 ]; then
  diff -r docs/reference "$work/pages" >&2 || die "docs/reference isn't up to date: run scripts/reference.sh"
else
  rm -rf docs/reference
  mkdir -p docs/reference
  cp "$work"/pages/*.md docs/reference
  say "made $(ls docs/reference | wc -l) pages"
fi
