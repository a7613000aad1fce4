#include "document/squad_steps.h"

#include "document/step_names.h"

std::int16_t DeleteFromSquad(GameDocument& document, int team, int slot)
{
    const Game& game = document.Records();
    const int player = game.Teams[std::size_t(team)].squad[std::size_t(slot)];
    std::int16_t deleted = 0;
    document.Change(DeleteStepText(game.Players[std::size_t(player)]), {team, player},
                    [&](Game& edited) { deleted = DeleteFromSquad(edited, team, slot); });
    return deleted;
}

std::int16_t AddToSquad(GameDocument& document, int team, std::int16_t candidate)
{
    const Game& game = document.Records();
    std::int16_t oldTeam = 0;
    document.Change(AddStepText(game.Players[std::size_t(candidate)], game.Teams[std::size_t(team)]),
                    {team, candidate}, [&](Game& edited) { oldTeam = AddToSquad(edited, team, candidate); });
    return oldTeam;
}

Replacement ReplaceInSquad(GameDocument& document, int team, int row, std::int16_t candidate)
{
    const Game& game = document.Records();
    const TeamRecord& squad = game.Teams[std::size_t(team)];
    const int replaced = squad.squad[std::size_t(SlotOfRow(squad, row))];
    Replacement done;
    document.Change(ReplaceStepText(game.Players[std::size_t(replaced)], game.Players[std::size_t(candidate)]),
                    {team, candidate, replaced},
                    [&](Game& edited) { done = ReplaceInSquad(edited, team, row, candidate); });
    return done;
}

NewPlayerOutcome CommitNewPlayer(GameDocument& document, int team, const NewPlayerEntries& entries)
{
    PlayerRecord named;
    named.initials = entries.initials;
    named.surname = entries.surname;
    NewPlayerOutcome outcome = NewPlayerOutcome::Added;
    document.Change(NewPlayerStepText(named), {team, document.Records().PlayerCount + 1},
                    [&](Game& edited) { outcome = CommitNewPlayer(edited, team, entries); });
    return outcome;
}
