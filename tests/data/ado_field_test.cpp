#include "data/ado_field.h"

#include "tests/data/ado_fixture.h"

namespace {

class AdoField : public CAdoTest {
protected:
    AdoField() { m_recordset.Open(L"select * from t", m_adoDatabase.GetConnection(), ADODB::adOpenStatic); }
    std::wstring Name(const CADOField& field) { return field.In(m_recordset).GetName(); }

    ADODB::Recordset m_recordset;
};

INSTANTIATE_TEST_SUITE_P(Engines, AdoField, TestEngines(), TestEngineName);

} // namespace

TEST_P(AdoField, IsFoundByNameInAnyCase) {
    EXPECT_EQ(Name("NAME"), L"name");
    EXPECT_EQ(Name(CString("Depth")), L"depth");
}

TEST_P(AdoField, IsFoundByPosition) {
    EXPECT_EQ(Name(0), L"id");
    EXPECT_EQ(Name(2), L"depth");
}

TEST_P(AdoField, RaisesWhereThereIsNone) {
    EXPECT_THROW(Name("none"), CComError);
    EXPECT_THROW(Name(""), CComError);
    EXPECT_THROW(Name(3), CComError);
    EXPECT_THROW(Name(-1), CComError);
}
