#include "session/whole_folder.h"

#include "session/file_faults.h"
#include "session/store_engine.h"
#include "session/store_image.h"
#include "session/store_tables.h"
#include "widgets/value_text.h"

#include <filesystem>
#include <list>

#include <sys/stat.h>

namespace levora::session {

struct WholeFolder::State {
    explicit State(const std::string& folder) : store(store_path(folder, Store::tax)) {}

    OpenStore store;
    std::list<StoreGate> other_gates;
};

WholeFolder::WholeFolder(const std::string& folder) : state_(std::make_unique<State>(folder)) {
    constexpr std::chrono::seconds longest_wait(10);
    OpenStore& store = state_->store;
    std::vector<AttachedStore> others;
    for (const Store each : all_stores)
        if (each != Store::tax) others.push_back({std::string(base_name(each)), store_path(folder, each)});
    store.attach(others);
    store.enter_gate();
    // Everyone who wants all gates takes them in this order.
    for (const AttachedStore& each : others)
        if (!state_->other_gates.emplace_back(each.file).enter(longest_wait))
            throw Failure(SQLITE_BUSY,
                          each.file + ": database is locked: another program keeps it for too long");
    store.begin();
}

WholeFolder::~WholeFolder() {
    state_->store.rollback();
}

StatementResult WholeFolder::run(std::string_view statement) {
    OpenStore& store = state_->store;
    const StatementText translated = translate(statement);
    return store.run(store.prepare(translated.in_saved_order()).get());
}

void WholeFolder::insert(std::string_view table, const std::vector<std::string>& columns,
                         const std::vector<Value>& values) {
    OpenStore& store = state_->store;
    const PreparedStatement statement = store.prepare(insert_statement(as_name(table), columns));
    for (std::size_t i = 0; i < values.size(); ++i)
        bind_value(store, statement.get(), static_cast<int>(i) + 1, values[i]);
    store.step(statement.get());
}

bool WholeFolder::has_rows_of(std::int64_t assessee_no) {
    for (const TableRule& each : store_tables()) {
        if (!find_column(each, "AssesseeNo")) continue;
        const StatementResult found = run("SELECT 1 FROM " + as_name(each.name) +
                                          " WHERE AssesseeNo = " + std::to_string(assessee_no) + " LIMIT 1");
        if (!found.rows.empty()) return true;
    }
    return false;
}

void WholeFolder::commit() {
    state_->store.commit();
    state_->other_gates.clear();
}

void make_folder(const std::string& folder) {
    struct stat found {};
    if (::stat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode)) return;
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    if (failed) throw_file_fault(folder, failed.value());
    (void)::chmod(folder.c_str(), shared_folder_mode);
}

void create_data_folder(const std::string& folder) {
    std::list<std::string> contents;
    StoreImages images;
    for (const Store each : all_stores)
        images.emplace(store_path(folder, each), &contents.emplace_back(image_of_empty(each)));
    refuse_stores_at_work(images);
    make_folder(folder);
    write_stores(images, {});
}

} // namespace levora::session
