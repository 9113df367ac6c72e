// A platform that has no documents location. None of ours is one, so this program brings its own QStandardPaths, which
// the dynamic linker then gives to the library too.

#include <config/UIConfig.h>

#include <QStandardPaths>

#include <gtest/gtest.h>

namespace {

int questions = 0;

} // namespace

QStringList QStandardPaths::standardLocations(StandardLocation type)
{
    questions += type == DocumentsLocation ? 1 : 0;
    return {};
}

TEST(NoDocumentsLocation, DirectoriesAreEmpty)
{
    UIConfig& config = lumo::tools::Singleton<UIConfig>::instance();
    EXPECT_EQ(questions, 4) << "each of the four directories is asked for";
    EXPECT_TRUE(config.getLastDirectoryBoard().isEmpty());
    EXPECT_TRUE(config.getLastDirectoryImport().isEmpty());
    EXPECT_TRUE(config.getLastDirectoryExport().isEmpty());
    EXPECT_TRUE(config.getLastDirectoryRecipe().isEmpty());
    EXPECT_TRUE(config.getDefaultAppDirectory().isEmpty());
    EXPECT_EQ(questions, 5);
}
