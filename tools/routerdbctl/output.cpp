#include "output.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "utf8.h"

namespace ctl {

namespace {

constexpr int most_shown = 40;
constexpr unsigned between_columns = 2;

bool has_colors = false;

void put(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
}

/// What a terminal may be shown, as wide as it may be.
/// @return how wide it has become
unsigned put_cut(std::string_view text, unsigned most) {
    unsigned width = 0;
    while (!text.empty()) {
        const std::string_view start = text;
        const std::uint32_t character = next_character(text);
        if (width + width_of(character) > most) {
            break;
        }
        width += width_of(character);
        put(can_be_shown(character) ? std::string_view(start.data(), start.size() - text.size())
                                    : std::string_view("?"));
    }
    return width;
}

/// How wide lines may become: only a terminal has an end.
unsigned line_width() {
    winsize size{};
    const bool is_terminal = isatty(STDOUT_FILENO) != 0;
    return is_terminal && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col != 0 ? size.ws_col : ~0U;
}

struct Layout {
    int columns;
    unsigned widths[most_shown];
    bool is_number[most_shown];

    void note(int column, std::string_view text) { widths[column] = std::max(widths[column], width_of(text)); }
};

Layout measure(Query &query, bool has_header) {
    Layout layout{std::min(query.columns(), most_shown), {}, {}};
    for (int i = 0; i < layout.columns; ++i) {
        layout.is_number[i] = true;
        if (has_header) {
            layout.note(i, query.name(i));
        }
    }
    while (query.next()) {
        for (int i = 0; i < layout.columns; ++i) {
            layout.is_number[i] =
                layout.is_number[i] && (query.type(i) == SQLITE_INTEGER || query.type(i) == SQLITE_NULL);
            layout.note(i, query.text(i));
        }
    }
    query.rewind();
    return layout;
}

/// One line. Blanks are put out when something follows them.
template <typename TextOf>
void put_line(const Layout &layout, TextOf text_of) {
    unsigned left = line_width();
    unsigned blanks = 0;
    for (int i = 0; i < layout.columns; ++i) {
        const std::string_view text = text_of(i);
        const unsigned fill = layout.widths[i] - width_of(text);
        blanks += layout.is_number[i] ? fill : 0;
        if (!text.empty() && blanks < left) {
            std::printf("%*s", static_cast<int>(blanks), "");
            left -= blanks;
            left -= put_cut(text, left);
            blanks = 0;
        }
        blanks += (layout.is_number[i] ? 0 : fill) + between_columns;
    }
}

void print_table(Query &query, bool has_header) {
    const Layout layout = measure(query, has_header);
    if (has_header) {
        std::fputs(begin_look(Look::heading), stdout);
        put_line(layout, [&](int column) { return std::string_view(query.name(column)); });
        std::printf("%s\n", end_look());
    }
    while (query.next()) {
        put_line(layout, [&](int column) { return query.text(column); });
        std::putchar('\n');
    }
}

void print_object(const Query &query) {
    const char *before = "{";
    for (int i = 0; i < query.columns(); ++i) {
        std::fputs(before, stdout);
        print_json(query.name(i));
        std::putchar(':');
        print_json(query, i);
        before = ",";
    }
    std::putchar('}');
}

void print_array(Query &query) {
    const char *before = "[\n  ";
    while (query.next()) {
        std::fputs(before, stdout);
        print_object(query);
        before = ",\n  ";
    }
    std::puts(before[0] == '[' ? "[]" : "\n]");
}

/// Tabs and line ends inside a value are written as "\t" and "\n", a backslash as "\\".
void put_between_tabs(std::string_view text) {
    for (const char c : text) {
        if (c == '\t' || c == '\n' || c == '\\' || c == '\r') {
            std::printf("\\%c", c == '\t' ? 't' : c == '\n' ? 'n' : c == '\r' ? 'r' : '\\');
        } else {
            std::putchar(c);
        }
    }
}

void print_tabs(Query &query, bool has_header) {
    for (int i = 0; has_header && i < query.columns(); ++i) {
        std::printf("%s%s", query.name(i), i + 1 < query.columns() ? "\t" : "\n");
    }
    while (query.next()) {
        for (int i = 0; i < query.columns(); ++i) {
            put_between_tabs(query.text(i));
            std::putchar(i + 1 < query.columns() ? '\t' : '\n');
        }
    }
}

void put_bytes(const char *kind, std::string_view bytes) {
    std::printf("{\"%s\":\"", kind);
    for (const char byte : bytes) {
        std::printf("%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    }
    std::fputs("\"}", stdout);
}

}  // namespace

void choose_colors(Color color) {
    const char *const unwanted = std::getenv("NO_COLOR");
    has_colors = color == Color::always || (color == Color::automatic && isatty(STDOUT_FILENO) != 0 &&
                                            (unwanted == nullptr || *unwanted == '\0'));
}

const char *begin_look(Look look) {
    constexpr const char *looks[] = {"", "\033[1m", "\033[32m", "\033[33m", "\033[31m"};
    return has_colors ? looks[static_cast<unsigned>(look)] : "";
}

const char *end_look() {
    return has_colors ? "\033[0m" : "";
}

void print_json(std::string_view text) {
    std::putchar('"');
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            std::printf("\\%c", c);
        } else if (static_cast<unsigned char>(c) < 0x20) {
            std::printf("\\u%04x", static_cast<unsigned>(c));
        } else {
            std::putchar(c);
        }
    }
    std::putchar('"');
}

void print_json(const Query &query, int column) {
    const int type = query.type(column);
    const std::string_view text = query.text(column);
    if (type == SQLITE_NULL) {
        put("null");
    } else if (type == SQLITE_INTEGER) {
        put(text);
    } else if (type == SQLITE_FLOAT) {
        std::printf("%.17g", sqlite3_value_double(query.value(column)));
    } else if (type == SQLITE_BLOB) {
        put_bytes("blob", text);
    } else if (!is_utf8(text) || text.find('\0') != std::string_view::npos) {
        put_bytes("text", text);
    } else {
        print_json(text);
    }
}

void print_shown(std::string_view text) {
    put_cut(text, ~0U);
}

void print_quoted(std::string_view text) {
    std::putchar('\'');
    for (const char c : text) {
        if (c == '\'') {
            put("'\\''");
        } else {
            std::putchar(c);
        }
    }
    std::putchar('\'');
}

Status print_rows(const Invocation &invocation, Query &query) {
    const bool has_header = !invocation.options.no_header;
    switch (invocation.options.format) {
        case Format::json:
            print_array(query);
            break;
        case Format::jsonl:
            while (query.next()) {
                print_object(query);
                std::putchar('\n');
            }
            break;
        case Format::tsv:
            print_tabs(query, has_header);
            break;
        case Format::set:
        case Format::sql:
            return fail(Status::usage, "rules alone can be written so; see \"routerdbctl help rule list\"");
        default:
            print_table(query, has_header);
            break;
    }
    return query.status();
}

}  // namespace ctl
