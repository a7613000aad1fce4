#include "filter/filter_tokens.h"

#include <array>
#include <utility>

#include "data/utf8.h"

namespace {

constexpr std::array<std::pair<std::string_view, Comparison>, 6> Comparisons{{
    {"=", Comparison::Equal},
    {"!=", Comparison::NotEqual},
    {"<", Comparison::Less},
    {"<=", Comparison::LessOrEqual},
    {">", Comparison::Greater},
    {">=", Comparison::GreaterOrEqual},
}};

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool IsComparisonSign(char c)
{
    return c == '=' || c == '!' || c == '<' || c == '>';
}

FilterError ErrorAt(std::string reason, std::size_t start, std::size_t end)
{
    return {std::move(reason), static_cast<int>(start), static_cast<int>(end - start)};
}

}  // namespace

std::string_view ComparisonText(Comparison comparison)
{
    for (const auto& [text, known] : Comparisons) {
        if (known == comparison)
            return text;
    }
    return {};
}

FilterTokens SplitFilter(std::string_view text)
{
    FilterTokens split;
    std::size_t at = 0;
    while (at < text.size()) {
        const char c = text[at];
        const std::size_t start = at;
        if (IsBlank(c)) {
            ++at;
        } else if (c == '"') {
            FilterToken token;
            token.kind = FilterToken::Kind::Quoted;
            for (++at;; ++at) {
                if (at == text.size()) {
                    split.error = ErrorAt("the quote is not closed", start, at);
                    return split;
                }
                if (text[at] == '"') {
                    if (at + 1 < text.size() && text[at + 1] == '"')
                        ++at;  // a doubled quote stands for one
                    else
                        break;
                }
                token.text += text[at];
            }
            ++at;
            token.start = static_cast<int>(start);
            token.end = static_cast<int>(at);
            split.tokens.push_back(std::move(token));
        } else if (IsComparisonSign(c)) {
            while (at < text.size() && IsComparisonSign(text[at]))
                ++at;
            const std::string_view sign = text.substr(start, at - start);
            FilterToken token{FilterToken::Kind::Comparison, std::string(sign)};
            bool known = false;
            for (const auto& [spelling, comparison] : Comparisons) {
                if (sign == spelling) {
                    token.comparison = comparison;
                    known = true;
                }
            }
            if (!known) {
                split.error = ErrorAt("\"" + Utf8FromCp1252(sign) + "\" is no comparison: use = != < <= > or >=",
                                      start, at);
                return split;
            }
            token.start = static_cast<int>(start);
            token.end = static_cast<int>(at);
            split.tokens.push_back(std::move(token));
        } else {
            while (at < text.size() && !IsBlank(text[at]) && text[at] != '"' && !IsComparisonSign(text[at]))
                ++at;
            split.tokens.push_back({FilterToken::Kind::Word, std::string(text.substr(start, at - start)),
                                    Comparison::Equal, static_cast<int>(start), static_cast<int>(at)});
        }
    }
    return split;
}
