#include "session/common_services.h"
#include "widgets/value_text.h"

namespace levora::session {

namespace {

using widgets::Answer;

enum class Wording { fixed, description, number_and_description };
enum class Buttons { ok, ok_cancel, abort_retry_ignore };

struct ErrorText {
    int number;
    Wording wording;
    std::string_view text;
    Buttons buttons;
};

// clang-format off
constexpr ErrorText error_texts[] = {
    {52,   Wording::fixed, "That filename is illegal.", Buttons::ok_cancel},
    {64,   Wording::fixed, "That filename is illegal.", Buttons::ok_cancel},
    {54,   Wording::fixed, "Can't open your file for that type of access.", Buttons::ok},
    {55,   Wording::fixed, "This file is already open.", Buttons::ok},
    {57,   Wording::fixed, "Internal disk error.", Buttons::ok},
    {61,   Wording::fixed, "Disk is full. Continue?", Buttons::abort_retry_ignore},
    {62,   Wording::fixed, "This file has a nonstandard end-of-file marker, or an attempt was made to "
                           "read beyond the end-of-file marker.", Buttons::abort_retry_ignore},
    {68,   Wording::fixed, "That device appears unavailable.", Buttons::ok_cancel},
    {71,   Wording::fixed, "Insert a disk in the drive and close the door.", Buttons::ok_cancel},
    {76,   Wording::fixed, "That path doesn't exist.", Buttons::ok_cancel},
    {3022, Wording::description, "", Buttons::ok},
    {3024, Wording::description, "", Buttons::abort_retry_ignore},
};
// clang-format on
constexpr ErrorText any_other{0, Wording::number_and_description, "", Buttons::ok};

const ErrorText& error_text_of(int number) {
    for (const ErrorText& each : error_texts)
        if (each.number == number) return each;
    return any_other;
}

std::string words_of(const ErrorText& text, const Failure& error) {
    switch (text.wording) {
    case Wording::fixed:
        return std::string(text.text);
    case Wording::description:
        return error.what();
    case Wording::number_and_description:
        break;
    }
    return number_text(error.number) + " " + error.what();
}

std::vector<Answer> buttons_of(const ErrorText& text) {
    switch (text.buttons) {
    case Buttons::ok_cancel:
        return {Answer::ok, Answer::cancel};
    case Buttons::abort_retry_ignore:
        return {Answer::abort, Answer::retry, Answer::ignore};
    case Buttons::ok:
        break;
    }
    return {Answer::ok};
}

// Wherever memory runs out, half a save may stand behind it: none of it goes down.
const Failure& with_loss(Session& session, const Failure& error) {
    static const Failure nothing_stored(error_number::out_of_memory,
                                        "Out of memory (nothing of this save is stored)");
    const bool lost = error.number == error_number::out_of_memory && session.take_back_all();
    return lost ? nothing_stored : error;
}

std::optional<Answer> log_and_show(Session& session, std::string_view name, const Failure& error) {
    const Failure& told = with_loss(session, error);
    LogError(session, name, told);
    return ShowFileError(session, told);
}

} // namespace

std::optional<Answer> ShowFileError(Session& session, const Failure& error) {
    try {
        session.commit_before_waiting();
    } catch (const Failure& of_commit) {
        // The report in hand goes first; that rows did not go down is told at the end of the event.
        LogError(session, "Errors - ShowFileError", of_commit);
    }
    const ErrorText& text = error_text_of(error.number);
    return session.desk.show_message(
        {words_of(text, error), "Levora Wealth Tax - Error", widgets::Icon::exclamation, buttons_of(text)});
}

void report_unanswered(Session& session, std::string_view event, const Failure& error) {
    (void)log_and_show(session, event, error);
    session.give_up_after(error); // there is no statement to be tried again
}

void Attempt::report(const Failure& error) const {
    if (log_and_show(session_, name_, error)) return;
    session_.give_up_after(error);
    throw ProcedureEnded();
}

} // namespace levora::session
