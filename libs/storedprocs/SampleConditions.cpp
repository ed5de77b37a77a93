#include "SampleTables.h"

namespace condtree::sample {

namespace {

constexpr Record kOrGroup{OrGroup, 0, u"", u"", u"", 0, 0};
constexpr const char16_t* kChildStateLabel = u"Child Reference State";
constexpr const char16_t* kChildHistoryLabel = u"Child Reference historic State";

constexpr Record kSubmitForReview[] = {
    {Top, CardVariable, u"Author", u"", u"", Text, IsNot},
    {Top, CardVariable, u"Document Number", u"", u"DOC-[0-9]%", Text, Pattern},
    {Top, FilePath, u"FilePath", u"", u"\\Projects\\", Text, Contains},
    kOrGroup,
    {InOr, Category, u"Category", u"", u"Drawing", Text, Is},
    {InOr, Category, u"Category", u"", u"Data Sheet", Text, Is},
    {InOr, CardVariable, u"Title", u"every pump document", u"%pump%", Text, FromText},
    {Top, CardVariable, u"Sheet Count", u"", u"1", Whole, NumberAtLeast},
};

constexpr Record kRequestChanges[] = {
    kOrGroup,
    {InOr, ByUser, u"User", u"", u"4", Text, Is},
    {InOr, ByUser, u"User", u"", u"7", Text, Is},
    {InOr, ByGroup, u"Group", u"", u"4", Text, Is},
    {Top, CardVariable, u"Change Reason", u"the reviewer must give a reason", u"", Text, IsNot},
};

constexpr Record kApprove[] = {
    {Top, CardVariable, u"Approved", u"", u"Yes", YesNo, YesNoIs},
    {Top, CardVariable, u"Due Date", u"", u">=2024-01-01", Date, FromText},
    {Top, CardVariable, u"Status", u"", u"!=open", Text, FromText},
    kOrGroup,
    {InOr, ByGroup, u"Group", u"", u"4", Text, Is},
    {InOr, ByGroup, u"Group", u"", u"7", Text, Is},
    {InOr, ByUser, u"User", u"has left the company", u"9999", Text, Is},
    kOrGroup,
    {InOr, CardVariable, u"Weight", u"kg", u"250", Decimal, NumberAtMost},
    {InOr, CardVariable, u"Safety Relevant", u"", u"No", YesNo, YesNoIs},
};

constexpr Record kRelease[] = {
    {Top, Revision, u"Revision", u"", u"A", Text, TextAtLeast},
    {Top, CardVariable, u"Approved", u"", u"Yes", YesNo, YesNoIs},
    {Top, CardVariable, u"Approved On", u"", u"2020-01-01", Date, DateAfter},
    kOrGroup,
    {InOr, ChildState, kChildStateLabel, u"", u"4", Text, Is},
    {InOr, ChildState, kChildStateLabel, u"", u"5", Text, Is},
    {InOr, ChildState, kChildStateLabel, u"any workflow", u"%Approved%", Text, Pattern},
    {InOr, ChildState, kChildStateLabel, u"", u"-12", Text, Is},
    {Top, ChildHistory, kChildHistoryLabel, u"was reviewed once", u"2", Text, Is},
};

constexpr Record kEvaluateChange[] = {
    {Top, CardVariable, u"Change Reason", u"", u"", Text, IsNot},
    {Top, CardVariable, u"Priority", u"1 is the highest", u"<=3", Whole, FromText},
    kOrGroup, // still to be filled in
    {Top, CardVariable, u"Project", u"", u"internal", Text, ContainsNot},
};

constexpr Record kSendToBoard[] = {
    kOrGroup,
    {InOr, CardVariable, u"Cost", u"EUR", u">10000", Decimal, FromText},
    {InOr, CardVariable, u"Safety Relevant", u"", u"Yes", YesNo, YesNoIs},
    {InOr, CardVariable, u"Customer", u"", u"%Rail%", Text, Pattern},
    kOrGroup,
    {InOr, ByUser, u"User", u"", u"6", Text, Is},
    {InOr, ByUser, u"User", u"", u"46", Text, Is},
    {Top, ByGroup, u"Group", u"", u"8", Text, IsNot},
};

constexpr Record kImplement[] = {
    kOrGroup,
    {InOr, ObjectType, u"Object Type", u"", u"1", Text, Is},
    {InOr, ObjectType, u"Object Type", u"", u"3", Text, Is},
    {InOr, ObjectType, u"Object Type", u"", u"4", Text, Is},
    {Top, Property, u"Item Number", u"assemblies", u"P-7", Text, Contains},
    {Top, CardVariable, u"Quantity", u"", u"0", Whole, NumberAbove},
    {Top, CardVariable, u"Lead Time (Days)", u"", u"60", Whole, NumberBelow},
};

constexpr Record kCloseChange[] = {
    {Top, CardVariable, u"Released On", u"", u"!=", Date, FromText},
    {Top, CardVariable, u"Valid Until", u"", u"2030-12-31", Date, DateAtMost},
    {Top, ChildHistory, kChildHistoryLabel, u"", u"-10", Text, IsNot},
    {Top, ChildHistory, kChildHistoryLabel, u"", u"%Verified", Text, Pattern},
};

constexpr Record kSelectSupplier[] = {
    {Top, CardVariable, u"Supplier", u"", u"%GmbH%", Text, FromText},
    {Top, CardVariable, u"Material", u"", u"1.4404", Text, Is},
    {Top, CardVariable, u"Cost", u"EUR per piece", u"12.50", Decimal, NumberAtMost},
    {Top, CardVariable, u"Order Quantity", u"", u"100", Whole, NumberIs},
    {Top, CardVariable, u"Currency", u"", u"EUR", Text, Is},
};

constexpr Record kApproveForPurchase[] = {
    {Top, Category, u"Category", u"", u"Purchase Contract", Text, Is},
    kOrGroup,
    {InOr, CardVariable, u"Scrap Rate", u"%", u"<0.5", Decimal, FromText},
    {InOr, CardVariable, u"Supplier Part Number", u"", u"!=%TEMP%", Text, FromText},
    kOrGroup,
    {InOr, CardVariable, u"Export Controlled", u"", u"No", YesNo, YesNoIs},
    {InOr, ByGroup, u"Group", u"may release exports", u"1", Text, Is},
    {Top, CardVariable, u"Next Audit", u"", u"2026-03-31", Date, DateBefore},
};

constexpr Record kStartInvestigation[] = {
    {Top, FilePath, u"FilePath", u"", u"\\Archive\\", Text, ContainsNot},
    {Top, CardVariable, u"Department", u"", u"Qualität", Text, Is},
    {Top, CardVariable, u"Created On", u"the day the portal opened", u"2023-11-05", Date, DateIs},
    {Top, CardVariable, u"Comment", u"", u"Kundenrückmeldung – 顧客", Text, Contains},
    {Top, CardVariable, u"Nominal Pressure", u"bar", u"0", Decimal, NumberIsNot},
};

constexpr Transition kTransitions[] = {
    {1, u"Submit for Review", 1, 2, u"admin", u"2024-02-12T08:30:00.000Z", kSubmitForReview},
    {1, u"Request Changes", 2, 3, u"fhoffmann", u"2024-02-12T09:05:00.000Z", kRequestChanges},
    {1, u"Approve", 2, 4, u"fhoffmann", u"2024-05-03T14:41:12.000Z", kApprove},
    {1, u"Release", 4, 5, u"abeaumont", u"2024-06-20T06:12:45.000Z", kRelease},
    {1, u"Withdraw", 5, 6, u"", u"", {}}, // anybody may, always
    {2, u"Evaluate", 7, 8, u"elaine", u"2024-03-18T10:00:00.000Z", kEvaluateChange},
    {2, u"Send to Change Board", 8, 9, u"sgarcia", u"2024-03-18T10:22:30.000Z", kSendToBoard},
    {2, u"Implement", 9, 10, u"sgarcia", u"2024-09-02T12:00:00.000Z", kImplement},
    {2, u"Close", 11, 12, u"admin", u"2025-01-09T16:35:21.000Z", kCloseChange},
    {3, u"Select Supplier", 13, 14, u"gdeluca", u"2024-04-22T07:48:03.000Z", kSelectSupplier},
    {3, u"Approve for Purchase", 15, 16, u"mlsilva", u"2024-11-27T13:15:59.000Z",
     kApproveForPurchase},
    {4, u"Start Investigation", 17, 18, u"ytanaka", u"2025-02-14T05:30:10.000Z",
     kStartInvestigation},
};

} // namespace

std::span<const Transition> transitions()
{
    return kTransitions;
}

} // namespace condtree::sample
