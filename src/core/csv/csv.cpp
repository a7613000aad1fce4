#include "csv/csv.h"

std::string CsvLine(const CsvRow& row)
{
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i > 0)
            line += ',';
        const std::string& field = row[i];
        if (field.find_first_of(",\"\r\n") == std::string::npos) {
            line += field;
            continue;
        }
        line += '"';
        for (const char c : field) {
            if (c == '"')
                line += '"';
            line += c;
        }
        line += '"';
    }
    return line + "\r\n";
}

namespace {

class CsvParser {
public:
    explicit CsvParser(std::string_view text) : text_(text)
    {
        if (text_.starts_with("\xEF\xBB\xBF"))
            pos_ = 3;
    }

    CsvTable Parse()
    {
        while (pos_ < text_.size() && table_.error.empty())
            ParseRow();
        return std::move(table_);
    }

private:
    bool AtLineEnd() const { return pos_ < text_.size() && (text_[pos_] == '\r' || text_[pos_] == '\n'); }

    void ConsumeLineEnd()
    {
        if (text_[pos_] == '\r' && pos_ + 1 < text_.size() && text_[pos_ + 1] == '\n')
            ++pos_;
        ++pos_;
        ++line_;
    }

    void ParseRow()
    {
        table_.lineNumbers.push_back(line_);
        CsvRow row;
        for (;;) {
            row.push_back(pos_ < text_.size() && text_[pos_] == '"' ? ParseQuoted() : ParsePlain());
            if (!table_.error.empty())
                return;
            if (pos_ < text_.size() && text_[pos_] == ',') {
                ++pos_;
                continue;
            }
            if (AtLineEnd())
                ConsumeLineEnd();
            break;
        }
        table_.rows.push_back(std::move(row));
    }

    std::string ParsePlain()
    {
        const std::size_t start = pos_;
        while (pos_ < text_.size() && text_[pos_] != ',' && !AtLineEnd()) {
            if (text_[pos_] == '"') {
                Fail("a double quote inside a field that does not begin with one");
                return {};
            }
            ++pos_;
        }
        return std::string(text_.substr(start, pos_ - start));
    }

    std::string ParseQuoted()
    {
        const int opened = line_;
        std::string field;
        ++pos_;
        for (;;) {
            if (pos_ >= text_.size()) {
                table_.errorLine = opened;
                table_.error = "a quoted field is not closed";
                return {};
            }
            const char c = text_[pos_];
            if (c == '"') {
                if (pos_ + 1 < text_.size() && text_[pos_ + 1] == '"') {
                    field += '"';
                    pos_ += 2;
                    continue;
                }
                ++pos_;
                break;
            }
            if (c == '\n' || (c == '\r' && !(pos_ + 1 < text_.size() && text_[pos_ + 1] == '\n')))
                ++line_;
            field += c;
            ++pos_;
        }
        if (pos_ < text_.size() && text_[pos_] != ',' && !AtLineEnd())
            Fail("text after the closing double quote of a field");
        return field;
    }

    void Fail(std::string reason)
    {
        table_.error = std::move(reason);
        table_.errorLine = line_;
    }

    std::string_view text_;
    std::size_t pos_ = 0;
    int line_ = 1;
    CsvTable table_;
};

}  // namespace

CsvTable ParseCsv(std::string_view text)
{
    return CsvParser(text).Parse();
}
