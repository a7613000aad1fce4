#include "cli/output.h"

#include "cli/json.h"
#include "data/utf8.h"

std::string ProblemLine(const Problem& problem)
{
    return problem.file + ": " + std::to_string(problem.record) + ": " + problem.field + ": " +
           (problem.severity == Severity::Error ? "error: " : "warning: ") + OnOneLine(problem.message);
}

std::string ProblemJson(const Problem& problem)
{
    return "{\"severity\":" + JsonString(problem.severity == Severity::Error ? "error" : "warning") +
           ",\"file\":" + JsonString(problem.file) + ",\"record\":" + std::to_string(problem.record) +
           ",\"field\":" + JsonString(problem.field) + ",\"message\":" + JsonString(problem.message) + "}";
}

std::string DifferenceJson(const Difference& d)
{
    std::string json = "{\"change\":" + JsonString(d.change) + ",\"file\":" + JsonString(d.file) +
                       ",\"record\":" + std::to_string(d.record);
    if (!d.field.empty())
        json += ",\"field\":" + JsonString(d.field);
    if (d.change != "added" && d.change != "rearranged")
        json += ",\"from\":" + JsonString(d.from);
    if (d.change != "removed" && d.change != "rearranged")
        json += ",\"to\":" + JsonString(d.to);
    return json + ",\"text\":" + JsonString(d.text) + "}";
}
