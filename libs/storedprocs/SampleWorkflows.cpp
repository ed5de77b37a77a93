#include "SampleTables.h"

namespace condtree::sample {

namespace {

constexpr Variable kVariables[] = {
    {u"Author", Text},
    {u"Title", Text},
    {u"Project", Text},
    {u"Document Number", Text},
    {u"Revision", Text},
    {u"Description", Text},
    {u"Status", Text},
    {u"Material", Text},
    {u"Finish", Text},
    {u"Supplier", Text},
    {u"Supplier Part Number", Text},
    {u"Item Number", Text},
    {u"Customer", Text},
    {u"Department", Text},
    {u"Checked By", Text},
    {u"Approved By", Text},
    {u"Change Reason", Text},
    {u"Keywords", Text},
    {u"Language", Text},
    {u"Currency", Text},
    {u"Drawing Size", Text},
    {u"Quantity", Whole},
    {u"Sheet Count", Whole},
    {u"Priority", Whole},
    {u"Lead Time (Days)", Whole},
    {u"Order Quantity", Whole},
    {u"Weight", Decimal},
    {u"Cost", Decimal},
    {u"Length", Decimal},
    {u"Width", Decimal},
    {u"Height", Decimal},
    {u"Flow Rate", Decimal},
    {u"Nominal Pressure", Decimal},
    {u"Scrap Rate", Decimal},
    {u"Approved", YesNo},
    {u"Safety Relevant", YesNo},
    {u"Export Controlled", YesNo},
    {u"Spare Part", YesNo},
    {u"Confidential", YesNo},
    {u"Created On", Date},
    {u"Due Date", Date},
    {u"Approved On", Date},
    {u"Released On", Date},
    {u"Valid Until", Date},
    {u"Next Audit", Date},
    {u"Comment", Text},
};

constexpr State kDocumentApproval[] = {
    {1, u"Draft", u"", 0},
    {2, u"In Review", u"Under Review", 0},
    {3, u"Changes Requested", u"", 0},
    {4, u"Approved", u"", 0},
    {5, u"Released", u"Released for Production", 1},
    {6, u"Obsolete", u"", 4},
};

constexpr State kEngineeringChange[] = {
    {7, u"Proposed", u"", 0},
    {8, u"Under Evaluation", u"", 0},
    {9, u"Change Board", u"Change Control Board", 2},
    {10, u"In Implementation", u"", 0},
    {11, u"Verified", u"", 0},
    {12, u"Closed", u"Change Closed", 1},
};

constexpr State kPurchasedPart[] = {
    {13, u"Requested", u"", 0},
    {14, u"Supplier Selection", u"", 0},
    {15, u"Sampling", u"First Article Inspection", 3},
    {16, u"Approved for Purchase", u"", 0},
};

constexpr State kQualityRecord[] = {
    {17, u"Open", u"", 0},
    {18, u"Under Investigation", u"", 0},
    {19, u"Corrective Action", u"", 0},
    {20, u"Closed", u"", 4},
};

constexpr Workflow kWorkflows[] = {
    {u"Document Approval", kDocumentApproval},
    {u"Engineering Change", kEngineeringChange},
    {u"Purchased Part", kPurchasedPart},
    {u"Quality Record", kQualityRecord},
};

constexpr DocumentType kDocumentTypes[] = {
    {u"Drawing", u"DRW"},     {u"Assembly Model", u"ASM"},   {u"Data Sheet", u"DS"},
    {u"Test Report", u"RPT"}, {u"Work Instruction", u"WIN"}, {u"Purchase Contract", u"PUR"},
};

} // namespace

std::span<const Variable> variables()
{
    return kVariables;
}

std::span<const Workflow> workflows()
{
    return kWorkflows;
}

std::span<const DocumentType> documentTypes()
{
    return kDocumentTypes;
}

} // namespace condtree::sample
