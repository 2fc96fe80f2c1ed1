// The form without a window: every control of the editor by its name, and the fields that its rules share.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "form/Choices.h"
#include "form/EditorControl.h"
#include "platform/Export.h"

namespace kestedit {

/// A line of the navigation list.
struct NavigationNode {
    std::string Title;  ///< column 0
    std::string Image;  ///< column 1: an image number as decimal text, or empty
};

/// What the navigation list holds and how it is drawn.
struct NavigationList {
    std::vector<NavigationNode> Nodes;
    int FocusedNode = 0;
    bool ShowIcons = true;
    std::int64_t RowColour = 14737632;  ///< blue * 65536 + green * 256 + red
    std::int64_t RowTextColour = 0;
};

// Texts that no control shows: messages, list entries, node titles, captions that a rule chooses.
inline constexpr std::size_t catalogueSize = 85;
inline constexpr std::size_t replaceIfCount = 8;
inline constexpr std::size_t localizerSize = 13;

struct NamedControl {
    std::string_view base;
    int members = 0;  ///< of a control array; 0: the control stands alone
};

/// The controls below by their names, in their order: tables that name controls are checked against it when they are
/// compiled (form/ControlNames.h). Test: FormModel.HasTheControlsOfTheListOfNames.
// clang-format off
inline constexpr auto controlNames = std::to_array<NamedControl>({
    {"dxTreeList1"}, {"cmdPrevious"}, {"cmdNext"}, {"cmdCancel"}, {"cmdSave"}, {"Image1"}, {"fraComment"},
    {"lblNamePath"}, {"lblName"}, {"dxName"}, {"lblComment"}, {"dxComment"}, {"fraMode"}, {"lblModus"},
    {"optAction", 6}, {"lblDeleteFiles"}, {"chkDelType"}, {"lblModeSub"}, {"chkPreview"}, {"chkOnlyCompare"},
    {"fraPath"}, {"lblSource", 1}, {"dxSource"}, {"lblDest", 1}, {"dxDest"}, {"chkEditPaths"}, {"lblChkPathMsg"},
    {"fraMonitoring"}, {"lblExecution"}, {"lblIntevalTitle"}, {"optIntervall", 3}, {"dxDays"}, {"lblDays"},
    {"dxHours"}, {"lblHours"}, {"dxMinutes"}, {"lblMinutes"}, {"optIntTime", 4}, {"lblDateTime"}, {"dxDateTime"},
    {"lblIntWeekDay"}, {"dxIntWeekDay"}, {"lblIntMonthDay"}, {"dxIntMonthDay"}, {"lblDate"}, {"dxDate"},
    {"lblChkTimeMsg"}, {"lblRTMon"}, {"optMonitorPath", 3}, {"dxMonitorPath"}, {"lblMonDelay"}, {"dxMonDelay"},
    {"lblWatchWhat"}, {"dxMonWatch"}, {"chkMonSubFolder"}, {"fraExecute"}, {"lblMonitoring"}, {"chkInactive"},
    {"chkRunOnce"}, {"chkFreeSpace"}, {"dxFreeSpace"}, {"lblExecTitle"}, {"chkExecDo"}, {"optExecute", 2},
    {"lblExecPath"}, {"dxExecPath"}, {"lblExecParam"}, {"dxExecParam"}, {"chkExecWait"}, {"lblExecMaxSec"},
    {"dxExecMaxSec"}, {"fraFolders"}, {"lblBehaviour"}, {"lblFindFolder"}, {"chkSubFolder"}, {"lblFolderTitle"},
    {"optFolderMatch", 3}, {"lblFolder"}, {"dxFolderMatch"}, {"chkRegExFolder"}, {"lblNoScans"},
    {"chkNoHiddenFolder"}, {"chkNoSystemFolder"}, {"chkNoReadOnlyFolder"}, {"chkDelEFol"}, {"fraFiles"},
    {"lblSearch"}, {"lblFindFiles"}, {"optFileMatch", 3}, {"lblFileName"}, {"dxFileName"}, {"chkRegExFile"},
    {"fraExtensions"}, {"lblFileExt"}, {"lblDatExt"}, {"optExt", 3}, {"lblExt"}, {"dxExt"}, {"fraFilesize"},
    {"lblFileSize"}, {"lblFileSizes"}, {"optSize", 3}, {"dxSize"}, {"lblSize"}, {"fraDate"}, {"lblFileAge"},
    {"lblFDate"}, {"optAge", 5}, {"lblFileAgeType"}, {"optFileAgeType", 3}, {"dxAge"}, {"lblFileAgeDays"},
    {"dxAgeHours"}, {"lblFileAgeHours"}, {"dxAgeMinutes"}, {"lblFileAgeMinutes"}, {"lblDatefrom"}, {"dxDateFrom"},
    {"lblDateTo"}, {"dxDateTo"}, {"lblFileDateType"}, {"optFileDate", 3}, {"lblFileDate"}, {"dxFileDate"},
    {"lblDestTime"}, {"chkDestFileTime", 3}, {"fraAttributes"}, {"lblAttrib"}, {"lblExclAttrib"}, {"lblSourceAttrib"},
    {"lblDestAttrib"}, {"chkAttrArchive", 3}, {"chkAttrReadOnly", 3}, {"chkAttrSystem", 3}, {"chkAttrHidden", 3},
    {"chkAttrNormal"}, {"chkAttrComp"}, {"optAttrSetSource", 2}, {"optAttrSetDest", 2}, {"fraCompression"},
    {"lblDestination"}, {"fraZip"}, {"lblSourceCompress"}, {"chkZipIntStruct"}, {"chkZipAll"}, {"chkZipExtStruct"},
    {"chkZipDelComp"}, {"chkZipDelCompBin"}, {"chkZipDelCompBinFolder"}, {"lblZipPwd"}, {"dxZipPwd"}, {"lblZipGrade"},
    {"dxZipGrade"}, {"fraUnZip"}, {"lblDestZDec"}, {"chkDestKeepZStruct"}, {"chkZipDelDeComp"},
    {"chkZipDelDeCompBin"}, {"lblDestZPwd"}, {"dxDestZipPwd"}, {"lblDestZFilter"}, {"dxDestZFilter"}, {"fraExisting"},
    {"lblKeepFolders"}, {"lblNoOptionMsg", 2}, {"fraSync"}, {"lblSyncTitle"}, {"lblSyncStart"}, {"optSyncStart", 2},
    {"lblSyncStartWay", 2}, {"lblSyncFunc"}, {"optSyncExist", 3}, {"chkSyncDelete"}, {"fraZielverzeichnis"},
    {"chkFStruct"}, {"lblExist"}, {"optExist", 5}, {"lblRenamer"}, {"dxRenamer"}, {"lblAnd"}, {"dxPickRenamer"},
    {"optRenameSelect", 2}, {"chkDelSourceRename"}, {"lblPickExistSelecter"}, {"dxPickExistSelecter"},
    {"lblExistTime"}, {"optExtFileTime", 3}, {"chkDelTypeSource"}, {"chkDelEFolSource"}, {"fraExistingUnzip"},
    {"lblDestZExist"}, {"optUnZip", 3},
});
// clang-format on

/// The controls are declared page by page, each row: kind, name, frame it stands in, design-time value. A rule reads
/// them as members; tables and drivers find them by name.
struct KESTEDIT_EXPORT FormModel : ControlRegistry {
    FormModel();

    // clang-format off
    using Kind = ControlKind;

    // ---- the form itself
    EditorControl   dxTreeList1          {*this, Kind::nodeList, "dxTreeList1"};
    EditorControl   cmdPrevious          {*this, Kind::command,  "cmdPrevious"};
    EditorControl   cmdNext              {*this, Kind::command,  "cmdNext"};
    EditorControl   cmdCancel            {*this, Kind::command,  "cmdCancel"};
    EditorControl   cmdSave              {*this, Kind::command,  "cmdSave"};
    EditorControl   Image1               {*this, Kind::picture,  "Image1"};

    // ---- job name and notes
    EditorControl   fraComment           {*this, Kind::frame,    "fraComment"};
    EditorControl   lblNamePath          {*this, Kind::label,    "lblNamePath",          fraComment};
    EditorControl   lblName              {*this, Kind::label,    "lblName",              fraComment};
    EditorControl   dxName               {*this, Kind::text,     "dxName",               fraComment, ""};
    EditorControl   lblComment           {*this, Kind::label,    "lblComment",           fraComment};
    EditorControl   dxComment            {*this, Kind::memo,     "dxComment",            fraComment, ""};

    // ---- mode
    EditorControl   fraMode              {*this, Kind::frame,    "fraMode"};
    EditorControl   lblModus             {*this, Kind::label,    "lblModus",             fraMode};
    ControlArray<6> optAction            {*this, Kind::option,   "optAction",            fraMode};
    EditorControl   lblDeleteFiles       {*this, Kind::label,    "lblDeleteFiles",       fraMode};
    EditorControl   chkDelType           {*this, Kind::check,    "chkDelType",           fraMode};
    EditorControl   lblModeSub           {*this, Kind::label,    "lblModeSub",           fraMode};
    EditorControl   chkPreview           {*this, Kind::check,    "chkPreview",           fraMode};
    EditorControl   chkOnlyCompare       {*this, Kind::check,    "chkOnlyCompare",       fraMode};

    // ---- source and destination
    EditorControl   fraPath              {*this, Kind::frame,    "fraPath"};
    ControlArray<1> lblSource            {*this, Kind::label,    "lblSource",            fraPath};
    EditorControl   dxSource             {*this, Kind::path,     "dxSource",             fraPath, ""};
    ControlArray<1> lblDest              {*this, Kind::label,    "lblDest",              fraPath};
    EditorControl   dxDest               {*this, Kind::path,     "dxDest",               fraPath, ""};
    EditorControl   chkEditPaths         {*this, Kind::check,    "chkEditPaths",         fraPath};
    EditorControl   lblChkPathMsg        {*this, Kind::label,    "lblChkPathMsg",        fraPath};

    // ---- monitoring: the schedule. Its title label is lblExecution; lblMonitoring titles the page behind it.
    EditorControl   fraMonitoring        {*this, Kind::frame,    "fraMonitoring"};
    EditorControl   lblExecution         {*this, Kind::label,    "lblExecution",         fraMonitoring};
    EditorControl   lblIntevalTitle      {*this, Kind::label,    "lblIntevalTitle",      fraMonitoring};
    ControlArray<3> optIntervall         {*this, Kind::option,   "optIntervall",         fraMonitoring};
    EditorControl   dxDays               {*this, Kind::spin,     "dxDays",               fraMonitoring, std::int64_t{0}};
    EditorControl   lblDays              {*this, Kind::label,    "lblDays",              fraMonitoring};
    EditorControl   dxHours              {*this, Kind::spin,     "dxHours",              fraMonitoring, std::int64_t{1}};
    EditorControl   lblHours             {*this, Kind::label,    "lblHours",             fraMonitoring};
    EditorControl   dxMinutes            {*this, Kind::spin,     "dxMinutes",            fraMonitoring, std::int64_t{0}};
    EditorControl   lblMinutes           {*this, Kind::label,    "lblMinutes",           fraMonitoring};
    ControlArray<4> optIntTime           {*this, Kind::option,   "optIntTime",           fraMonitoring};
    EditorControl   lblDateTime          {*this, Kind::label,    "lblDateTime",          fraMonitoring};
    EditorControl   dxDateTime           {*this, Kind::time,     "dxDateTime",           fraMonitoring};
    EditorControl   lblIntWeekDay        {*this, Kind::label,    "lblIntWeekDay",        fraMonitoring};
    EditorControl   dxIntWeekDay         {*this, Kind::pick,     "dxIntWeekDay",         fraMonitoring, ""};
    EditorControl   lblIntMonthDay       {*this, Kind::label,    "lblIntMonthDay",       fraMonitoring};
    EditorControl   dxIntMonthDay        {*this, Kind::number,   "dxIntMonthDay",        fraMonitoring, std::int64_t{1}};
    EditorControl   lblDate              {*this, Kind::label,    "lblDate",              fraMonitoring};
    EditorControl   dxDate               {*this, Kind::date,     "dxDate",               fraMonitoring};
    EditorControl   lblChkTimeMsg        {*this, Kind::label,    "lblChkTimeMsg",        fraMonitoring};
    EditorControl   lblRTMon             {*this, Kind::label,    "lblRTMon",             fraMonitoring};
    ControlArray<3> optMonitorPath       {*this, Kind::option,   "optMonitorPath",       fraMonitoring};
    EditorControl   dxMonitorPath        {*this, Kind::path,     "dxMonitorPath",        fraMonitoring, ""};
    EditorControl   lblMonDelay          {*this, Kind::label,    "lblMonDelay",          fraMonitoring};
    EditorControl   dxMonDelay           {*this, Kind::number,   "dxMonDelay",           fraMonitoring, std::int64_t{5}};
    EditorControl   lblWatchWhat         {*this, Kind::label,    "lblWatchWhat",         fraMonitoring};
    EditorControl   dxMonWatch           {*this, Kind::pick,     "dxMonWatch",           fraMonitoring, ""};
    EditorControl   chkMonSubFolder      {*this, Kind::check,    "chkMonSubFolder",      fraMonitoring};

    // ---- execution: run conditions and the program behind the run
    EditorControl   fraExecute           {*this, Kind::frame,    "fraExecute"};
    EditorControl   lblMonitoring        {*this, Kind::label,    "lblMonitoring",        fraExecute};
    EditorControl   chkInactive          {*this, Kind::check,    "chkInactive",          fraExecute};
    EditorControl   chkRunOnce           {*this, Kind::check,    "chkRunOnce",           fraExecute};
    EditorControl   chkFreeSpace         {*this, Kind::check,    "chkFreeSpace",         fraExecute};
    EditorControl   dxFreeSpace          {*this, Kind::number,   "dxFreeSpace",          fraExecute, std::int64_t{2000}};
    EditorControl   lblExecTitle         {*this, Kind::label,    "lblExecTitle",         fraExecute};
    EditorControl   chkExecDo            {*this, Kind::check,    "chkExecDo",            fraExecute};
    ControlArray<2> optExecute           {*this, Kind::option,   "optExecute",           fraExecute};
    EditorControl   lblExecPath          {*this, Kind::label,    "lblExecPath",          fraExecute};
    EditorControl   dxExecPath           {*this, Kind::path,     "dxExecPath",           fraExecute, ""};
    EditorControl   lblExecParam         {*this, Kind::label,    "lblExecParam",         fraExecute};
    EditorControl   dxExecParam          {*this, Kind::text,     "dxExecParam",          fraExecute, ""};
    EditorControl   chkExecWait          {*this, Kind::check,    "chkExecWait",          fraExecute};
    EditorControl   lblExecMaxSec        {*this, Kind::label,    "lblExecMaxSec",        fraExecute};
    EditorControl   dxExecMaxSec         {*this, Kind::number,   "dxExecMaxSec",         fraExecute, std::int64_t{60}};

    // ---- finding folders
    EditorControl   fraFolders           {*this, Kind::frame,    "fraFolders"};
    EditorControl   lblBehaviour         {*this, Kind::label,    "lblBehaviour",         fraFolders};
    EditorControl   lblFindFolder        {*this, Kind::label,    "lblFindFolder",        fraFolders};
    EditorControl   chkSubFolder         {*this, Kind::check,    "chkSubFolder",         fraFolders};
    EditorControl   lblFolderTitle       {*this, Kind::label,    "lblFolderTitle",       fraFolders};
    ControlArray<3> optFolderMatch       {*this, Kind::option,   "optFolderMatch",       fraFolders};
    EditorControl   lblFolder            {*this, Kind::label,    "lblFolder",            fraFolders};
    EditorControl   dxFolderMatch        {*this, Kind::text,     "dxFolderMatch",        fraFolders, ""};
    EditorControl   chkRegExFolder       {*this, Kind::check,    "chkRegExFolder",       fraFolders};
    EditorControl   lblNoScans           {*this, Kind::label,    "lblNoScans",           fraFolders};
    EditorControl   chkNoHiddenFolder    {*this, Kind::check,    "chkNoHiddenFolder",    fraFolders};
    EditorControl   chkNoSystemFolder    {*this, Kind::check,    "chkNoSystemFolder",    fraFolders};
    EditorControl   chkNoReadOnlyFolder  {*this, Kind::check,    "chkNoReadOnlyFolder",  fraFolders};
    EditorControl   chkDelEFol           {*this, Kind::check,    "chkDelEFol",           fraFolders};

    // ---- finding files
    EditorControl   fraFiles             {*this, Kind::frame,    "fraFiles"};
    EditorControl   lblSearch            {*this, Kind::label,    "lblSearch",            fraFiles};
    EditorControl   lblFindFiles         {*this, Kind::label,    "lblFindFiles",         fraFiles};
    ControlArray<3> optFileMatch         {*this, Kind::option,   "optFileMatch",         fraFiles};
    EditorControl   lblFileName          {*this, Kind::label,    "lblFileName",          fraFiles};
    EditorControl   dxFileName           {*this, Kind::text,     "dxFileName",           fraFiles, ""};
    EditorControl   chkRegExFile         {*this, Kind::check,    "chkRegExFile",         fraFiles};

    // ---- file extensions
    EditorControl   fraExtensions        {*this, Kind::frame,    "fraExtensions"};
    EditorControl   lblFileExt           {*this, Kind::label,    "lblFileExt",           fraExtensions};
    EditorControl   lblDatExt            {*this, Kind::label,    "lblDatExt",            fraExtensions};
    ControlArray<3> optExt               {*this, Kind::option,   "optExt",               fraExtensions};
    EditorControl   lblExt               {*this, Kind::label,    "lblExt",               fraExtensions};
    EditorControl   dxExt                {*this, Kind::text,     "dxExt",                fraExtensions, ""};

    // ---- file size
    EditorControl   fraFilesize          {*this, Kind::frame,    "fraFilesize"};
    EditorControl   lblFileSize          {*this, Kind::label,    "lblFileSize",          fraFilesize};
    EditorControl   lblFileSizes         {*this, Kind::label,    "lblFileSizes",         fraFilesize};
    ControlArray<3> optSize              {*this, Kind::option,   "optSize",              fraFilesize};
    EditorControl   dxSize               {*this, Kind::number,   "dxSize",               fraFilesize};
    EditorControl   lblSize              {*this, Kind::label,    "lblSize",              fraFilesize};

    // ---- file date and age
    EditorControl   fraDate              {*this, Kind::frame,    "fraDate"};
    EditorControl   lblFileAge           {*this, Kind::label,    "lblFileAge",           fraDate};
    EditorControl   lblFDate             {*this, Kind::label,    "lblFDate",             fraDate};
    ControlArray<5> optAge               {*this, Kind::option,   "optAge",               fraDate};
    EditorControl   lblFileAgeType       {*this, Kind::label,    "lblFileAgeType",       fraDate};
    ControlArray<3> optFileAgeType       {*this, Kind::option,   "optFileAgeType",       fraDate};
    EditorControl   dxAge                {*this, Kind::spin,     "dxAge",                fraDate, std::int64_t{1}};
    EditorControl   lblFileAgeDays       {*this, Kind::label,    "lblFileAgeDays",       fraDate};
    EditorControl   dxAgeHours           {*this, Kind::spin,     "dxAgeHours",           fraDate, std::int64_t{0}};
    EditorControl   lblFileAgeHours      {*this, Kind::label,    "lblFileAgeHours",      fraDate};
    EditorControl   dxAgeMinutes         {*this, Kind::spin,     "dxAgeMinutes",         fraDate, std::int64_t{0}};
    EditorControl   lblFileAgeMinutes    {*this, Kind::label,    "lblFileAgeMinutes",    fraDate};
    EditorControl   lblDatefrom          {*this, Kind::label,    "lblDatefrom",          fraDate};
    EditorControl   dxDateFrom           {*this, Kind::date,     "dxDateFrom",           fraDate};
    EditorControl   lblDateTo            {*this, Kind::label,    "lblDateTo",            fraDate};
    EditorControl   dxDateTo             {*this, Kind::date,     "dxDateTo",             fraDate};
    EditorControl   lblFileDateType      {*this, Kind::label,    "lblFileDateType",      fraDate};
    ControlArray<3> optFileDate          {*this, Kind::option,   "optFileDate",          fraDate};
    EditorControl   lblFileDate          {*this, Kind::label,    "lblFileDate",          fraDate};
    EditorControl   dxFileDate           {*this, Kind::date,     "dxFileDate",           fraDate};
    EditorControl   lblDestTime          {*this, Kind::label,    "lblDestTime",          fraDate};
    ControlArray<3> chkDestFileTime      {*this, Kind::check,    "chkDestFileTime",      fraDate};

    // ---- file attributes: member 0 excludes, member 1 is set at the destination, member 2 at the source
    EditorControl   fraAttributes        {*this, Kind::frame,    "fraAttributes"};
    EditorControl   lblAttrib            {*this, Kind::label,    "lblAttrib",            fraAttributes};
    EditorControl   lblExclAttrib        {*this, Kind::label,    "lblExclAttrib",        fraAttributes};
    EditorControl   lblSourceAttrib      {*this, Kind::label,    "lblSourceAttrib",      fraAttributes};
    EditorControl   lblDestAttrib        {*this, Kind::label,    "lblDestAttrib",        fraAttributes};
    ControlArray<3> chkAttrArchive       {*this, Kind::check,    "chkAttrArchive",       fraAttributes};
    ControlArray<3> chkAttrReadOnly      {*this, Kind::check,    "chkAttrReadOnly",      fraAttributes};
    ControlArray<3> chkAttrSystem        {*this, Kind::check,    "chkAttrSystem",        fraAttributes};
    ControlArray<3> chkAttrHidden        {*this, Kind::check,    "chkAttrHidden",        fraAttributes};
    EditorControl   chkAttrNormal        {*this, Kind::check,    "chkAttrNormal",        fraAttributes};
    EditorControl   chkAttrComp          {*this, Kind::check,    "chkAttrComp",          fraAttributes};
    ControlArray<2> optAttrSetSource     {*this, Kind::option,   "optAttrSetSource",     fraAttributes};
    ControlArray<2> optAttrSetDest       {*this, Kind::option,   "optAttrSetDest",       fraAttributes};

    // ---- compression and extraction
    EditorControl   fraCompression       {*this, Kind::frame,    "fraCompression"};
    EditorControl   lblDestination       {*this, Kind::label,    "lblDestination",       fraCompression};
    EditorControl   fraZip               {*this, Kind::frame,    "fraZip",               fraCompression};
    EditorControl   lblSourceCompress    {*this, Kind::label,    "lblSourceCompress",    fraZip};
    EditorControl   chkZipIntStruct      {*this, Kind::check,    "chkZipIntStruct",      fraZip};
    EditorControl   chkZipAll            {*this, Kind::check,    "chkZipAll",            fraZip};
    EditorControl   chkZipExtStruct      {*this, Kind::check,    "chkZipExtStruct",      fraZip};
    EditorControl   chkZipDelComp        {*this, Kind::check,    "chkZipDelComp",        fraZip};
    EditorControl   chkZipDelCompBin     {*this, Kind::check,    "chkZipDelCompBin",     fraZip};
    EditorControl   chkZipDelCompBinFolder{*this, Kind::check,   "chkZipDelCompBinFolder", fraZip};
    EditorControl   lblZipPwd            {*this, Kind::label,    "lblZipPwd",            fraZip};
    EditorControl   dxZipPwd             {*this, Kind::password, "dxZipPwd",             fraZip, ""};
    EditorControl   lblZipGrade          {*this, Kind::label,    "lblZipGrade",          fraZip};
    EditorControl   dxZipGrade           {*this, Kind::pick,     "dxZipGrade",           fraZip, ""};
    EditorControl   fraUnZip             {*this, Kind::frame,    "fraUnZip",             fraCompression};
    EditorControl   lblDestZDec          {*this, Kind::label,    "lblDestZDec",          fraUnZip};
    EditorControl   chkDestKeepZStruct   {*this, Kind::check,    "chkDestKeepZStruct",   fraUnZip};
    EditorControl   chkZipDelDeComp      {*this, Kind::check,    "chkZipDelDeComp",      fraUnZip};
    EditorControl   chkZipDelDeCompBin   {*this, Kind::check,    "chkZipDelDeCompBin",   fraUnZip};
    EditorControl   lblDestZPwd          {*this, Kind::label,    "lblDestZPwd",          fraUnZip};
    EditorControl   dxDestZipPwd         {*this, Kind::password, "dxDestZipPwd",         fraUnZip, ""};
    EditorControl   lblDestZFilter       {*this, Kind::label,    "lblDestZFilter",       fraUnZip};
    EditorControl   dxDestZFilter        {*this, Kind::text,     "dxDestZFilter",        fraUnZip, ""};

    // ---- destination: synchronisation, existing files, existing files when extracting
    EditorControl   fraExisting          {*this, Kind::frame,    "fraExisting"};
    // lblNoOptionMsg(0) stands on the compression page, with the text for actions that do not compress.
    EditorControl   lblKeepFolders       {*this, Kind::label,    "lblKeepFolders",       fraExisting};
    ControlArray<2> lblNoOptionMsg       {*this, Kind::label,    "lblNoOptionMsg",       fraExisting};
    EditorControl   fraSync              {*this, Kind::frame,    "fraSync",              fraExisting};
    EditorControl   lblSyncTitle         {*this, Kind::label,    "lblSyncTitle",         fraSync};
    EditorControl   lblSyncStart         {*this, Kind::label,    "lblSyncStart",         fraSync};
    ControlArray<2> optSyncStart         {*this, Kind::option,   "optSyncStart",         fraSync};
    ControlArray<2> lblSyncStartWay      {*this, Kind::label,    "lblSyncStartWay",      fraSync};
    EditorControl   lblSyncFunc          {*this, Kind::label,    "lblSyncFunc",          fraSync};
    ControlArray<3> optSyncExist         {*this, Kind::option,   "optSyncExist",         fraSync};
    EditorControl   chkSyncDelete        {*this, Kind::check,    "chkSyncDelete",        fraSync};
    EditorControl   fraZielverzeichnis   {*this, Kind::frame,    "fraZielverzeichnis",   fraExisting};
    EditorControl   chkFStruct           {*this, Kind::check,    "chkFStruct",           fraZielverzeichnis};
    EditorControl   lblExist             {*this, Kind::label,    "lblExist",             fraZielverzeichnis};
    ControlArray<5> optExist             {*this, Kind::option,   "optExist",             fraZielverzeichnis};
    EditorControl   lblRenamer           {*this, Kind::label,    "lblRenamer",           fraZielverzeichnis};
    EditorControl   dxRenamer            {*this, Kind::text,     "dxRenamer",            fraZielverzeichnis, ""};
    EditorControl   lblAnd               {*this, Kind::label,    "lblAnd",               fraZielverzeichnis};
    EditorControl   dxPickRenamer        {*this, Kind::pick,     "dxPickRenamer",        fraZielverzeichnis, ""};
    ControlArray<2> optRenameSelect      {*this, Kind::option,   "optRenameSelect",      fraZielverzeichnis};
    EditorControl   chkDelSourceRename   {*this, Kind::check,    "chkDelSourceRename",   fraZielverzeichnis};
    EditorControl   lblPickExistSelecter {*this, Kind::label,    "lblPickExistSelecter", fraZielverzeichnis};
    EditorControl   dxPickExistSelecter  {*this, Kind::pick,     "dxPickExistSelecter",  fraZielverzeichnis, ""};
    EditorControl   lblExistTime         {*this, Kind::label,    "lblExistTime",         fraZielverzeichnis};
    ControlArray<3> optExtFileTime       {*this, Kind::option,   "optExtFileTime",       fraZielverzeichnis};
    EditorControl   chkDelTypeSource     {*this, Kind::check,    "chkDelTypeSource",     fraZielverzeichnis};
    EditorControl   chkDelEFolSource     {*this, Kind::check,    "chkDelEFolSource",     fraZielverzeichnis};
    EditorControl   fraExistingUnzip     {*this, Kind::frame,    "fraExistingUnzip",     fraExisting};
    EditorControl   lblDestZExist        {*this, Kind::label,    "lblDestZExist",        fraExistingUnzip};
    ControlArray<3> optUnZip             {*this, Kind::option,   "optUnZip",             fraExistingUnzip};
    // clang-format on

    // ---- fields that the rules share
    std::string Caption;       ///< of the window
    std::string ViewLevel;     ///< decimal text of the number given to Show
    int SelectedAction = 0;    ///< copy, move, delete, compress, extract, synchronise
    int CompressionLevel = 3;  ///< of the job: 1 none, 2 low, 3 normal, 4 high; any other is kept as it is
    int ActionPicture = 0;     ///< shown in Image1: 1 to 6 the actions, 7 to 12 their preview form, 0 none
    bool DisableInsteadOfHide = false;
    bool InvalidRenamerChars = false;
    bool InvalidFileNameChars = false;
    bool InvalidFolderMatchChars = false;
    bool InvalidExtChars = false;
    /// What the filter of a field has dropped, each character once, for the notice beside the field.
    std::map<const EditorControl*, std::string> DroppedChars;
    bool NameWanted = false;  ///< a save has met a job without a name
    bool DateFormatChanged = false;
    bool StoredAsUtf8 = false;  ///< the job's file is UTF-8, or will be: a character may take several bytes
    int HandledUnZipItem = -1;  ///< the optUnZip member whose rule ran last
    int fMode = 0;              ///< path field that the new-folder dialog serves: source, destination, monitored folder
    std::string StoredNodeIcon;  ///< the action's image as the job holds it; stands where the view has no node for it
    std::string LoadProblem;     ///< why the job could not be read; empty when it was, and for a new one
    std::string LoadedName;      ///< job name as it was loaded; empty for a new job

    std::vector<std::string> TextCatalogue = std::vector<std::string>(catalogueSize);
    std::array<std::string, replaceIfCount> ReplaceIfTexts;
    std::array<std::string, localizerSize> Localizer;  ///< by the identifiers of the control library

    NavigationList Navigation;         ///< the content of dxTreeList1
    std::map<int, int> PageNodeIndex;  ///< page number of the view to node position
    bool Ready = false;                ///< nodes are built and the initial rule pass has run: nodes may be marked
    bool TreeBusy = false;             ///< the list is being rebuilt: nodes must not be marked

    EditorControl* FocusedControl = nullptr;       ///< not owned
    std::vector<const EditorControl*> FrontOrder;  ///< frames brought to the front, the frontmost last

    /// What the job does, as the action's rule has noted it in SelectedAction.
    [[nodiscard]] Action action() const { return static_cast<Action>(SelectedAction); }

    /// Puts a frame in front of those that share its place.
    void BringToFront(const EditorControl& control);
};

}  // namespace kestedit
