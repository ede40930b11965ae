/// The reader of symbol and schematic files. Everything is bounded by the text's own length: no count in the
/// file is believed, nesting costs a counter and not a call, and a brace that never closes ends the reading
/// after a few attempts, so that a hostile file costs no more than a few walks over it.

#include "host/Symbol.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "host/PropertyText.h"

namespace navigator {

namespace {

constexpr double cnLargestCoordinate = 1e9;
constexpr int cnLargestLayer = 1000;
constexpr std::size_t cnDeepestEmbedding = 8;
constexpr int cnOpenBracesForgiven = 8;

bool IsFieldBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\0';
}

/// A place in the text, and the fields that can be read from there.
class FieldReader {
public:
    explicit FieldReader(std::string_view text) : m_text(text) {}

    [[nodiscard]] bool AtEnd() const { return m_at >= m_text.size(); }
    [[nodiscard]] std::size_t Position() const { return m_at; }
    void MoveTo(std::size_t position) { m_at = position; }
    /// A brace was opened that the text never closes.
    [[nodiscard]] bool FoundOpenBrace() const { return m_foundOpenBrace; }
    void ForgetOpenBrace() { m_foundOpenBrace = false; }

    [[nodiscard]] char Peek() const { return AtEnd() ? '\0' : m_text[m_at]; }

    void SkipBlanks() {
        while (!AtEnd() && IsFieldBlank(m_text[m_at]))
            ++m_at;
    }
    void SkipLine() {
        const std::size_t end = m_text.find('\n', m_at);
        m_at = end == std::string_view::npos ? m_text.size() : end + 1;
    }

    std::optional<double> Number() {
        SkipBlanks();
        if (Peek() == '+') ++m_at;
        double value = 0;
        const char* const end = m_text.data() + m_text.size();
        const auto [next, error] = std::from_chars(m_text.data() + m_at, end, value);
        // Also refuses "nan" and "inf", which are numbers to from_chars.
        if (error != std::errc() || !(std::abs(value) <= cnLargestCoordinate)) return std::nullopt;
        m_at = static_cast<std::size_t>(next - m_text.data());
        return value;
    }

    bool Numbers(std::initializer_list<double*> values) {
        return std::all_of(values.begin(), values.end(), [this](double* value) {
            const std::optional<double> number = Number();
            if (number) *value = *number;
            return number.has_value();
        });
    }

    std::optional<int> Layer() {
        const std::optional<double> number = Number();
        if (!number) return std::nullopt;
        return static_cast<int>(std::clamp(*number, 0.0, double(cnLargestLayer)));
    }

    /// A text in braces, without them and without the backslashes.
    std::optional<std::string> Braced() {
        SkipBlanks();
        if (Peek() != '{') return std::nullopt;
        std::string text;
        int depth = 1;
        for (std::size_t at = m_at + 1; at < m_text.size(); ++at) {
            char character = m_text[at];
            if (character == '\\' && at + 1 < m_text.size()) {
                character = m_text[++at];
            } else if (character == '{') {
                ++depth;
            } else if (character == '}' && --depth == 0) {
                m_at = at + 1;
                return text;
            }
            text += character;
        }
        m_foundOpenBrace = true;
        return std::nullopt;
    }

    /// The properties at the end of a record. A record without any is as good as one with empty ones.
    std::optional<std::string> Properties() {
        SkipBlanks();
        if (Peek() != '{') return std::string();
        return Braced();
    }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
    bool m_foundOpenBrace = false;
};

/// The file's records in their order, each added to the symbol that is open.
class SymbolParser {
public:
    SymbolParser(std::string_view text, bool headOnly) : m_text(text), m_reader(text), m_headOnly(headOnly) {
        m_open.push_back(&m_symbol);
    }

    Symbol Parse() {
        while (!m_reader.AtEnd() && !m_reachedDrawing)
            ParseLine();
        return std::move(m_symbol);
    }
    [[nodiscard]] bool ReachedDrawing() const { return m_reachedDrawing; }

private:
    void ParseLine() {
        m_reader.SkipBlanks();
        const std::size_t start = m_reader.Position();
        const char letter = m_reader.Peek();
        if (letter == '\n' || m_reader.AtEnd()) {
            m_reader.SkipLine();
            return;
        }
        if (m_headOnly && std::string_view("LBPATNC[]").find(letter) != std::string_view::npos) {
            m_reachedDrawing = true;
            return;
        }
        m_reader.MoveTo(start + 1);
        if (!ParseRecord(letter)) SkipRecord(start);
        // What stands behind a record on its line belongs to nothing, as in the editors that write the
        // format.
        m_reader.SkipLine();
    }

    void SkipRecord(std::size_t start) {
        m_reader.MoveTo(start);
        ++m_symbol.skippedLines;
        if (!m_reader.FoundOpenBrace()) return;
        m_reader.ForgetOpenBrace();
        if (++m_openBraces < cnOpenBracesForgiven) return;
        const std::string_view rest = m_text.substr(start);
        m_symbol.skippedLines += static_cast<std::size_t>(std::count(rest.begin(), rest.end(), '\n'));
        if (!rest.empty() && rest.back() == '\n') --m_symbol.skippedLines;
        m_reader.MoveTo(m_text.size());
    }

    bool ParseRecord(char letter) {
        switch (letter) {
            case 'L':
                return ParseLineOrBox(Current().lines);
            case 'B':
                return ParseLineOrBox(Current().boxes);
            case 'P':
                return ParsePolygon();
            case 'A':
                return ParseArc();
            case 'T':
                return ParseText();
            case 'N':
                return ParseWire();
            case 'C':
                return ParseInstance();
            case '[':
                return OpenEmbedded();
            case ']':
                return CloseEmbedded();
            case 'G':
                return ParseBlock(&Symbol::globalProperties);
            case 'K':
                return ParseBlock(&Symbol::symbolProperties);
            case 'v':
            case 'V':
            case 'S':
            case 'E':
                return m_reader.Braced().has_value();
            default:
                return false;
        }
    }

    /// Where records go: nowhere that anyone sees while an embedding is too deep.
    Symbol& Current() { return m_tooDeep > 0 ? m_dropped : *m_open.back(); }

    bool ParseBlock(std::string Symbol::*block) {
        std::optional<std::string> text = m_reader.Braced();
        if (!text) return false;
        Current().*block = std::move(*text);
        return true;
    }

    bool ParseLineOrBox(std::vector<SymbolLine>& target) {
        SymbolLine line{};
        const std::optional<int> layer = m_reader.Layer();
        if (!layer || !m_reader.Numbers({&line.x1, &line.y1, &line.x2, &line.y2})) return false;
        line.layer = *layer;
        return Finish(line, target);
    }

    bool ParsePolygon() {
        SymbolPolygon polygon{};
        const std::optional<int> layer = m_reader.Layer();
        const std::optional<double> count = layer ? m_reader.Number() : std::nullopt;
        if (!count || *count < 1) return false;
        polygon.layer = *layer;
        while (static_cast<double>(polygon.points.size()) < *count) {
            SymbolPoint point{};
            if (!m_reader.Numbers({&point.x, &point.y})) return false;
            polygon.points.push_back(point);
        }
        return Finish(polygon, Current().polygons);
    }

    bool ParseArc() {
        SymbolArc arc{};
        const std::optional<int> layer = m_reader.Layer();
        if (!layer || !m_reader.Numbers({&arc.x, &arc.y, &arc.radius, &arc.start, &arc.sweep})) return false;
        arc.layer = *layer;
        arc.radius = std::abs(arc.radius);
        return Finish(arc, Current().arcs);
    }

    bool ParseText() {
        SymbolText text{};
        std::optional<std::string> words = m_reader.Braced();
        double rotation = 0;
        double flip = 0;
        if (!words || !m_reader.Numbers({&text.x, &text.y, &rotation, &flip, &text.hsize, &text.vsize}))
            return false;
        text.text = std::move(*words);
        SetTurn(text, rotation, flip);
        return Finish(text, Current().texts);
    }

    bool ParseWire() {
        SymbolWire wire{};
        if (!m_reader.Numbers({&wire.x1, &wire.y1, &wire.x2, &wire.y2})) return false;
        return Finish(wire, Current().wires);
    }

    bool ParseInstance() {
        SymbolInstance instance{};
        std::optional<std::string> reference = m_reader.Braced();
        double rotation = 0;
        double flip = 0;
        if (!reference || !m_reader.Numbers({&instance.x, &instance.y, &rotation, &flip})) return false;
        instance.reference = std::move(*reference);
        SetTurn(instance, rotation, flip);
        return Finish(instance, Current().instances);
    }

    template <typename TTurned>
    static void SetTurn(TTurned& turned, double rotation, double flip) {
        turned.rotation = static_cast<int>(static_cast<long long>(rotation) & 3);
        turned.flip = flip != 0;
    }

    template <typename TRecord>
    bool Finish(TRecord& record, std::vector<TRecord>& target) {
        std::optional<std::string> properties = m_reader.Properties();
        if (!properties) return false;
        record.properties = std::move(*properties);
        target.push_back(std::move(record));
        return true;
    }

    bool OpenEmbedded() {
        if (m_tooDeep > 0 || m_open.size() > cnDeepestEmbedding || Current().instances.empty()) {
            ++m_tooDeep;
            return false;
        }
        SymbolInstance& instance = Current().instances.back();
        instance.embedded = std::make_shared<Symbol>();
        m_open.push_back(instance.embedded.get());
        return true;
    }

    bool CloseEmbedded() {
        if (m_tooDeep > 0) {
            // The bracket was counted when it opened; what stood inside is not wanted any more.
            if (--m_tooDeep == 0) m_dropped = Symbol();
            return true;
        }
        if (m_open.size() == 1) return false;
        m_open.pop_back();
        return true;
    }

    std::string_view m_text;
    FieldReader m_reader;
    bool m_headOnly;
    bool m_reachedDrawing = false;
    int m_openBraces = 0;
    std::size_t m_tooDeep = 0;
    Symbol m_symbol;
    Symbol m_dropped;
    std::vector<Symbol*> m_open;
};

}  // namespace

std::string Symbol::Property(std::string_view name) const {
    std::optional<std::string> value = gProperty(symbolProperties, name);
    if (!value) value = gProperty(globalProperties, name);
    return value.value_or("");
}

Symbol gParseSymbol(std::string_view text) {
    return SymbolParser(text, false).Parse();
}

Symbol gParseSymbolHead(std::string_view text, bool& isComplete) {
    SymbolParser parser(text, true);
    Symbol symbol = parser.Parse();
    isComplete = parser.ReachedDrawing();
    return symbol;
}

}  // namespace navigator
