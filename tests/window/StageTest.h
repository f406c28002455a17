#pragma once

#include "platform/Files.h"
#include "tour/Stage.h"

#include <QTemporaryDir>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

namespace gatewise::test {

/// A stage in a scratch folder, with the pictures and data of the build.
class StageTest : public testing::Test {
protected:
    void SetUp() override { makeStage(GATEWISE_PROGRAM_DIR); }

    void makeStage(const std::string& program, stage::Time time = stage::Time::Simulated) {
        stage_.reset();
        scratch_ = std::make_unique<QTemporaryDir>();
        const std::string folder = scratch_->path().toStdString();
        stage_ = std::make_unique<stage::Stage>(stage::makeProgramFolder(program, folder), time);
        stage_->machine.registry.folder = files::textOf(std::filesystem::path(folder) / "FS2002");
    }

    /// The program anew in the folder that the last run left, once that run is over.
    void restart() {
        const std::string appDir = stage_->window.program.session.AppDir;
        stage_.reset();
        stage_ = std::make_unique<stage::Stage>(appDir, stage::Time::Simulated);
        stage_->machine.registry.folder = files::textOf(folder().parent_path() / "FS2002");
    }

    static bool dataIsThere() { return std::filesystem::exists(GATEWISE_PROGRAM_DIR "/Data/index.gt1"); }

    void then(stage::Stage::Step step) { stage_->then(std::move(step)); }
    void play() {
        stage_->play();
        for (const auto& miss : stage_->misses) ADD_FAILURE() << miss;
    }
    stage::Stage& stage() { return *stage_; }
    Forms& forms() { return stage_->forms(); }
    /// The program's folder on this stage.
    [[nodiscard]] std::filesystem::path folder() const {
        return std::filesystem::path(scratch_->path().toStdString()) / "Gatewise";
    }

private:
    std::unique_ptr<QTemporaryDir> scratch_;
    std::unique_ptr<stage::Stage> stage_;
};

/// A stage with the data sets that are delivered; skipped where the build has none.
class DeliveredStageTest : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        StageTest::SetUp();
    }
    forms::MainForm& main() { return forms().MainForm; }
};

} // namespace gatewise::test
