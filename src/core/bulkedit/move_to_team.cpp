#include <algorithm>
#include <memory>
#include <vector>

#include "bulkedit/bulk_edit.h"
#include "bulkedit/plan_steps.h"
#include "data/record_titles.h"
#include "data/squad.h"

BulkEdit PlanMoveToTeam(const Game& game, std::span<const int> players, int team)
{
    if (!IsTableRecord(game, RecordKind::Team, team))
        return Refused(NoSuchRecord(RecordKind::Team, team));
    std::vector<int> joining;
    for (const int player : players) {
        if (!IsTableRecord(game, RecordKind::Player, player))
            return Refused(NoSuchRecord(RecordKind::Player, player), player);
        if (!IsInSquad(game, team, static_cast<std::int16_t>(player)) &&
            std::find(joining.begin(), joining.end(), player) == joining.end())
            joining.push_back(player);
    }
    if (joining.empty())
        return Refused("the squad of " + TeamTitle(game, team) + " holds every player chosen already");
    const int room = SquadSize - SquadCount(game.Teams[team]);
    if (static_cast<int>(joining.size()) > room)
        return Refused(TeamTitle(game, team) + " has room for " + Counted(room, RecordKind::Player) + ", not " +
                           std::to_string(joining.size()) + ": a squad holds at most " + std::to_string(SquadSize),
                       joining[static_cast<std::size_t>(room)]);

    // The moves themselves are Add Existing's, made on a copy of the game.
    const auto moved = std::make_unique<Game>(game);
    for (const int player : joining)
        AddToSquad(*moved, team, static_cast<std::int16_t>(player));
    BulkEdit plan;
    plan.change = NoChange(game);
    std::sort(joining.begin(), joining.end());
    for (const int player : joining)
        AddCopy(plan.change, game, player, moved->Players[static_cast<std::size_t>(player)]);
    // Every squad a player may be taken out of, as DetachFromSquads looks.
    for (int number = 1; number <= LastTeamSearched(game); ++number)
        AddCopy(plan.change, game, number, moved->Teams[static_cast<std::size_t>(number)]);
    plan.summary = "move of " + Counted(static_cast<int>(joining.size()), RecordKind::Player) + " to " +
                   TeamTitle(game, team);
    return plan;
}
