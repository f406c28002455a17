#include "tour/Stage.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    const QTemporaryDir scratch;
    gatewise::stage::useRoomyDesk(scratch.path().toStdString());
    QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
