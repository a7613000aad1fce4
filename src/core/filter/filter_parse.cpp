#include "filter/record_filter.h"

#include <algorithm>
#include <utility>

#include "data/squad.h"
#include "data/text_number.h"
#include "data/utf8.h"
#include "filter/filter_tokens.h"
#include "newplayer/new_player_check.h"

namespace {

bool AllDigits(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsOrdering(Comparison comparison)
{
    return comparison != Comparison::Equal && comparison != Comparison::NotEqual;
}

// The words of a value and where they end.
struct Value {
    std::string text;
    std::string key;
    std::size_t next = 0;  // the token after the value
    int end = 0;           // one past its last character
    bool quoted = false;
};

class FilterReader {
public:
    FilterReader(std::vector<FilterToken> tokens, RecordKind kind, const Game& game)
        : tokens_(std::move(tokens)), kind_(kind), game_(game)
    {
    }

    ParsedFilter Read()
    {
        ParsedFilter parsed;
        auto& groups = parsed.filter.groups;
        groups.emplace_back();
        const FilterToken* lastOr = nullptr;
        for (std::size_t i = 0; i < tokens_.size();) {
            const FilterToken& token = tokens_[i];
            if (token.IsComparison())
                return Failed(Error("a comparison needs a column before it", token.start, token.end));
            if (IsOr(i)) {
                FlushNames(groups.back());
                if (groups.back().empty())
                    return Failed(Error("\"or\" needs a term on each side", token.start, token.end));
                groups.emplace_back();
                lastOr = &token;
                ++i;
            } else if (IsComparisonAt(i + 1)) {
                FlushNames(groups.back());
                FilterTerm term;
                if (auto error = ReadComparison(i, term))
                    return Failed(std::move(*error));
                groups.back().push_back(std::move(term));
            } else {
                AddNameWord(token);
                ++i;
            }
        }
        FlushNames(groups.back());
        if (groups.back().empty()) {
            if (lastOr)
                return Failed(Error("\"or\" needs a term on each side", lastOr->start, lastOr->end));
            groups.clear();  // nothing typed: every record passes
        }
        return parsed;
    }

private:
    static ParsedFilter Failed(FilterError error)
    {
        ParsedFilter parsed;
        parsed.error = std::move(error);
        return parsed;
    }

    static FilterError Error(std::string reason, int start, int end)
    {
        return {std::move(reason), start, end - start};
    }

    bool IsComparisonAt(std::size_t i) const { return i < tokens_.size() && tokens_[i].IsComparison(); }

    bool IsOr(std::size_t i) const
    {
        const std::string& text = tokens_[i].text;
        return tokens_[i].kind == FilterToken::Kind::Word && text.size() == 2 && (text[0] | 0x20) == 'o' &&
               (text[1] | 0x20) == 'r';
    }

    // A word that is neither "or" nor the column of a comparison.
    bool IsPlainWord(std::size_t i) const
    {
        return i < tokens_.size() && !tokens_[i].IsComparison() && !IsOr(i) && !IsComparisonAt(i + 1);
    }

    // Plain words side by side are one text, as Find Player takes "A J Smi".
    void AddNameWord(const FilterToken& token)
    {
        if (namesPending_)
            names_ += ' ';
        names_ += token.text;
        namesPending_ = true;
    }

    void FlushNames(std::vector<FilterTerm>& group)
    {
        if (!namesPending_)
            return;
        FilterTerm term;
        term.test = FilterTerm::Test::Name;
        term.digits = AllDigits(names_);
        term.key = term.digits ? names_ : NameKey(names_);
        group.push_back(std::move(term));
        names_.clear();
        namesPending_ = false;
    }

    // A quoted text, or a word and as many more as some candidate begins with.
    Value ReadValue(std::size_t i, const std::vector<std::string>* candidates) const
    {
        const FilterToken& first = tokens_[i];
        Value value{first.text, NameKey(first.text), i + 1, first.end, first.kind == FilterToken::Kind::Quoted};
        if (value.quoted || !candidates)
            return value;
        while (IsPlainWord(value.next)) {
            const FilterToken& word = tokens_[value.next];
            const std::string longer = value.key + NameKey(word.text);
            if (std::none_of(candidates->begin(), candidates->end(),
                             [&longer](const std::string& candidate) { return candidate.starts_with(longer); }))
                break;
            value.text += ' ' + word.text;
            value.key = longer;
            value.end = word.end;
            ++value.next;
        }
        return value;
    }

    std::optional<FilterError> ReadComparison(std::size_t& i, FilterTerm& term) const
    {
        const FilterToken& name = tokens_[i];
        const FilterToken& sign = tokens_[i + 1];
        term.column = FindColumn(kind_, name.text);
        if (!term.column)
            return Error("no column is called " + QuotedUtf8(name.text), name.start, name.end);
        term.comparison = sign.comparison;
        if (i + 2 >= tokens_.size() || tokens_[i + 2].IsComparison() || IsOr(i + 2))
            return Error(term.column->name + " needs a value after " + std::string(ComparisonText(sign.comparison)),
                         name.start, sign.end);

        const std::vector<std::string> candidates = Candidates(*term.column);
        const Value value = ReadValue(i + 2, candidates.empty() ? nullptr : &candidates);
        i = value.next;
        const auto fault = [&](std::string reason) { return Error(std::move(reason), name.start, value.end); };
        const std::optional<double> number = TextAsDecimal(value.text);

        if (term.column->IsName()) {
            term.test = FilterTerm::Test::Text;
            term.key = value.key;
            return std::nullopt;
        }
        if (term.column->source == ColumnSource::BirthDate) {
            const BirthDateEntry date = ReadBirthDate(value.text);
            if (date.fault)
                return fault(*date.fault);
            term.test = FilterTerm::Test::Number;
            term.number = DayOrder(date.date);
            return std::nullopt;
        }
        if (number) {
            term.test = FilterTerm::Test::Number;
            term.number = *number;
            return std::nullopt;
        }
        if (const CodeList* codes = term.column->Codes()) {
            if (CodeValue(*codes, value, term))
                return std::nullopt;
            return fault(term.column->name + " takes a word of its list or a code, not " + QuotedUtf8(value.text));
        }
        if (term.column->source == ColumnSource::Club) {
            if (IsOrdering(term.comparison))
                return fault("club takes a team's number with " + std::string(ComparisonText(term.comparison)));
            if (TeamValue(value, term))
                return std::nullopt;
            return fault("no team is called " + QuotedUtf8(value.text));
        }
        return fault(term.column->name + " takes a number, not " + QuotedUtf8(value.text));
    }

    // The keys a value of `column` may run over: the words of its list, the
    // teams' names and "none" for a club, the names the records hold.
    std::vector<std::string> Candidates(const TableColumn& column) const
    {
        std::vector<std::string> keys;
        if (const CodeList* codes = column.Codes()) {
            for (std::string_view word : codes->words)
                keys.push_back(NameKey(word));
        } else if (column.source == ColumnSource::Club) {
            keys.push_back("none");
            for (int team = 1; team <= LoadedTeamCount(game_); ++team)
                keys.push_back(NameKey(game_.Teams[team].teamName));
        } else if (column.IsName()) {
            const int last = kind_ == RecordKind::Player ? LoadedPlayerCount(game_) : LoadedTeamCount(game_);
            for (int number = 1; number <= last; ++number) {
                keys.push_back(NameKey(kind_ == RecordKind::Player ? game_.Players[number].*column.playerField->text
                                                                 : game_.Teams[number].*column.teamField->text));
            }
        }
        return keys;
    }

    // A word of the list; a word that stands twice (Namibia) is both codes.
    static bool CodeValue(const CodeList& codes, const Value& value, FilterTerm& term)
    {
        for (std::size_t i = 0; i < codes.words.size(); ++i) {
            if (NameKey(codes.words[i]) != value.key)
                continue;
            const int code = codes.firstCode + static_cast<int>(i);
            if (term.codes == 0)
                term.number = code;  // the lowest, for < and >
            term.codes |= std::uint64_t{1} << code;
        }
        term.test = IsOrdering(term.comparison) ? FilterTerm::Test::Number : FilterTerm::Test::Codes;
        return term.codes != 0;
    }

    bool TeamValue(const Value& value, FilterTerm& term) const
    {
        term.test = FilterTerm::Test::Teams;
        if (!value.quoted && value.key == "none")
            term.teams.set(0);
        for (int team = 1; team <= LoadedTeamCount(game_); ++team) {
            if (NameKey(game_.Teams[team].teamName) == value.key)
                term.teams.set(static_cast<std::size_t>(team));
        }
        return term.teams.any();
    }

    std::vector<FilterToken> tokens_;
    RecordKind kind_;
    const Game& game_;
    std::string names_;
    bool namesPending_ = false;  // a quoted "" is a name word too
};

}  // namespace

ParsedFilter ParseFilter(std::string_view text, RecordKind kind, const Game& game)
{
    FilterTokens split = SplitFilter(text);
    if (split.error) {
        ParsedFilter parsed;
        parsed.filter.kind = kind;
        parsed.error = std::move(split.error);
        return parsed;
    }
    ParsedFilter parsed = FilterReader(std::move(split.tokens), kind, game).Read();
    parsed.filter.kind = kind;
    return parsed;
}
