#include "core/Semantica.h"

#include <gtest/gtest.h>

using namespace sorvelo;

TEST(Conversao, ArredondaMetadesParaOPar) {
    EXPECT_EQ(paraInt16(2.5), 2);
    EXPECT_EQ(paraInt16(3.5), 4);
    EXPECT_EQ(paraInt16(-2.5), -2);
    EXPECT_EQ(paraInt32(15890699.999999994), 15890700);
}
