#pragma once

#include "session/session_state.h"
#include "widgets/failure.h"

#include <cstdint>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace levora::session {

// --- Errors ---

// Appends one record to "ErrorLog.txt" in the program's folder, or in the user's state folder where
// that can't be written: date and time between number signs, procedure, number, description.
void LogError(Session& session, std::string_view procedure, const Failure& error);
// Shows the error with the text and buttons of its number; the button pressed, nothing when the report
// was dismissed. Pending rows go down to the stores first.
std::optional<widgets::Answer> ShowFileError(Session& session, const Failure& error);

// Thrown by a step whose error report was dismissed; caught by the procedure that it ends.
struct ProcedureEnded {};

// Runs one procedure that has an error report. Its body takes the steps:
//
//     procedure(session_, "frmWealthTaxMain - LoadPrepaidTaxes", [&](const auto& attempt) {
//         RowSet rows = attempt([&] { return session_.TaxDb.open_rows(session_.SqlText); });
//     });
//
// A step that fails, or runs out of memory, is logged and reported under the procedure's name and tried
// again for as long as a button answers; dismissing the report ends the procedure (false), and its
// caller goes on. A failure outside any step is reported once and ends the procedure.
template <class Body> bool procedure(Session& session, std::string_view name, Body body);

// Reports a Failure that no procedure has answered, once, under the event's name.
void report_unanswered(Session& session, std::string_view event, const Failure& error);

class Attempt {
public:
    Attempt(Session& session, std::string_view name) : session_(session), name_(name) {}

    template <class Step> auto operator()(Step step) const -> decltype(step()) {
        for (;;) {
            try {
                return step();
            } catch (const Failure& error) {
                report(error);
            } catch (const std::bad_alloc&) {
                report(memory_ran_out);
            }
        }
    }

private:
    void report(const Failure& error) const; // throws ProcedureEnded when dismissed

    Session& session_;
    std::string_view name_;
};

template <class Body> bool procedure(Session& session, std::string_view name, Body body) {
    try {
        body(Attempt(session, name));
        return true;
    } catch (const Failure& error) {
        report_unanswered(session, name, error);
    } catch (const std::bad_alloc&) {
        report_unanswered(session, name, memory_ran_out);
    } catch (const ProcedureEnded&) {
        // The person has dismissed the report: this procedure ends here.
    }
    return false;
}

// --- RegKeys: settings of the current user; a failure is the empty text or false ---

std::string RegReadValue(const Session& session, const std::string& key, const std::string& name);
bool RegWriteString(Session& session, const std::string& key, const std::string& name,
                    const std::string& text);

// --- LevoraMod ---

// An amount in words by the Indian system, "Nil" for 0 or less; a blank stays behind each unit.
std::string AmtToWords(std::int32_t amount);
// 0 to 99 in words; the empty text above.
std::string AmtPartToWords(std::uint8_t part);
// To the nearest multiple of 100; a remainder that rounds to 50 goes up (section 44C).
double RoundToHundred(double amount);
// The telephone code of a country, named exactly; empty when unknown.
std::string CountryToISD(std::string_view country);
std::string StateToCode(std::string_view state); // "99" when unknown
std::string CodeToState(std::string_view code);  // "OTHERS" when unknown

// Names of the return's lists: the countries in the order of their table, and the 38 states.
std::vector<std::string> country_names();
std::vector<std::string> state_names();

// The look of buttons is the window's own; kept as the one place where a screen asks for it.
void SkinButtons(widgets::Form& form);
// Unloads frmRepPreview if it is loaded, then shows it.
void PreviewForm(Session& session);

} // namespace levora::session
