"""What the export needs from each template.

These tables are kept by hand, independently of the sources from which the templates are made.
"""

# Every template except those of WITHOUT_MARK also has {or}.
PLACEHOLDERS = {
    "Claim1 P1":
        "1 2 9 10 11 stagenumber typeofcase casereferencenumber title firstname surname "
        "dateofbirth morethan1certificate accountnumber rollnumber nameoffirm casereference "
        "contactnameforenquiries telephoneforenquiries emailforenquiries 3 4 "
        "datelegalhelpformsigned totalcostsincurred 5 6 inclusiveofallsolicitorsreasons 7 8",
    "Claim1 P2":
        "issueofproceedingsdate dateoffinalworkdate nameofcourt emergencycertificatedate "
        "substantivecertificatedate g h i j k l m n q r date explanation",
    "Claim1 P2 Late Submission Cont": "explanation",
    "Claim1 P3": "detailsofcase detailsofenhancement",
    "Claim1 P3 Case Details Cont": "detailsofcase",
    "Claim1 P3 Enhancement Cont": "detailsofenhancement",
    "Claim1 P3 Panel Membership Cont": "",
    "Claim1 P4": "ctotal 1 2",
    "Claim1 P4 Counsels Fees Cont": "",
    "Claim1 P5": "actm dtm htm ttm wtm actl dtl htl ttl wtl total",
    "Claim1 P6": "1 2 expertsmeetmojstandardreasons exnet exvat extot",
    "Claim1 P6 Additional Info Cont": "",
    "Claim1 P6 Expert Dibs Cont": "",
    "Claim1 P6 Expert Dibs Standards Cont": "expertsmeetmojstandardreasons",
    "Claim1 P7": "nettotal vattotal dibstotal",
    "Claim1 P7 Expert Dibs Joint Instruction Cont": "",
    "Claim1 P7 Other Dibs Cont": "",
    "Claim1 P8":
        "loir1 lo1 loenh1 lototal1 loir2 lo2 loenh2 lototal2 "
        "liir1 li1 lienh1 litotal1 liir2 li2 lienh2 litotal2 "
        "tcir1 tc1 tcenh1 tctotal1 tcir2 tc2 tcenh2 tctotal2 "
        "cmtotal npc nex ndibs ntotal vpc vex vdibs vtotal grandtotal counsel ncf vcf cftotal "
        "csl1 cslamt1 csl2 cslamt2 csl3 cslamt3 csl4 cslamt4 csl5 cslamt5 csl6 cslamt6",
    "Claim1 P9":
        "precertcosts duringcertlsc duringcertmr 1 2 lhipccamount interest dateinterestcommenced "
        "interestbreakdown rcvrdtodate dateorderserved addressofservice 3 4 5 6 detmamount 7 8 "
        "offerbydebtordetails value dmrcvrdtodate",
    "Claim1 P10":
        "title initials surnameororganisation firstname dateofbirth nationalinsurancenumber "
        "address phonework phonehome mobile fax email solicitorsfirmname 1 2 3 job employersname "
        "employersaddress assets debtorsincome 4 5 casereference information",

    "Claim1A P1":
        "1 2 7 10 11 stagenumber typeofcase casereferencenumber title firstname surname "
        "dateofbirth morethan1certificate accountnumber rollnumber nameoffirm casereference "
        "contactnameforenquiries telephoneforenquiries emailforenquiries 3 4 "
        "datelegalhelpformsigned totalcostsincurred 5 6",
    "Claim1A P2":
        "issueofproceedingsdate emergencycertificatedate substantivecertificatedate 1 2 3 4 5 "
        "dateoffinalorder 6 7 8 b c",
    "Claim1A P3": "detailsofcase 1 2 3 4 5 6 7 8 9 caspc caspcv a b c d e f g h i j k l",
    "Claim1A P3 NoP Cont": "detailsofcase",
    "Claim1A P4":
        "plpc plpcv 1 2 3 4 5 6 7 8 9 a b c workatalllevelsreasons d e fixedfee fixedfeevat "
        "nex vex dibs dibsvat total totalvat adv advvat csl cslvat",
    "Claim1A P4 Reasons For Not Undertaking Work At All Levels Cont": "workatalllevelsreasons",
    "Claim1A P5": "ctotal 1 2",
    "Claim1A P5 Counsels Fees Cont": "",
    "Claim1A P6": "exnet exvat extot 1 2 expertsmeetmojstandardreasons",
    "Claim1A P6 Expert Dibs Cont": "",
    "Claim1A P6 Expert Dibs Standards Cont": "expertsmeetmojstandardreasons",
    "Claim1A P7": "dibsnet dibsvat dibstotal",
    "Claim1A P7 Expert Dibs Joint Instruction Cont": "",
    "Claim1a P7 Other Dibs Cont": "",           # lower-case a
    "Claim1A P8": "actot acvat",
    "Claim1A P8 Advocacy Costs Cont": "",
    "Claim1A P8 Bolt on Payments Cont": "",
    "Claim1A P8 Exceptional travel bolt-on Cont": "",
    "Claim1A P9": "detailsofcase",
    "Claim1A P9 Case Details Cont": "detailsofcase",
    "Claim1A P9 Panel Membership Cont": "",
    "Claim1A P10": "actm dtm htm ttm wtm actl dtl htl ttl wtl total",
    "Claim1A P11":
        "loir1 lo1 loenh1 lototal1 loir2 lo2 loenh2 lototal2 "
        "liir1 li1 lienh1 litotal1 liir2 li2 lienh2 litotal2 "
        "tcir1 tc1 tcenh1 tctotal1 tcir2 tc2 tcenh2 tctotal2 "
        "cmtotal npc nex ndibs nsubtotal nfas ncsl ntotal vpc vex vdibs vsubtotal vfas vcsl vtotal",
    "Claim1A P11 Additional Info Cont": "",
    "Claim1A P12":
        "precertcosts duringcertlsc duringcertmr totalcosts 1 2 lhipccamount interest "
        "dateinterestcommenced interestbreakdown rcvrdtodate dateorderserved addressofservice 3 4 "
        "5 6 detmamount 7 8 offerbydebtordetails",
    "Claim1A P13":
        "title initials surnameororganisation firstname dateofbirth nationalinsurancenumber "
        "address phonework phonehome mobile fax email solicitorsfirmname 1 2 3 job employersname "
        "employersaddress assets debtorsincome 4 5 casereference information",
}
WITHOUT_MARK = {"Claim1 P9", "Claim1A P12"}

# Sheets that are marked more than once have this many hidden spares of {or}.
SPARES = {"Claim1 P4": 1, "Claim1 P6": 2, "Claim1A P5": 1, "Claim1A P7": 1, "Claim1A P8": 2}

TICKS = {
    "Claim1 P1": "1 2 9 10 11 3 4 5 6 7 8",
    "Claim1 P2": "l m n q r",
    "Claim1 P4": "1 2",
    "Claim1 P6": "1 2",
    "Claim1 P9": "1 2 3 4 5 6 7 8",
    "Claim1 P10": "1 2 3 4 5",

    "Claim1A P1": "1 2 7 10 11 3 4 5 6",
    "Claim1A P2": "6 7 8 b c",
    "Claim1A P3": "1 2 3 4 5 6 7 8 9 a b c d e f g h i j k l",
    "Claim1A P4": "1 2 3 4 5 6 7 8 9 a b c d e",
    "Claim1A P5": "1 2",
    "Claim1A P6": "1 2",
    "Claim1A P12": "1 2 3 4 5 6 7 8",
    "Claim1A P13": "1 2 3 4 5",
}
MONEY = {
    "Claim1 P1": "totalcostsincurred",
    "Claim1 P4": "ctotal",
    "Claim1 P5": "actl dtl htl ttl wtl total",
    "Claim1 P6": "exnet exvat extot",
    "Claim1 P7": "nettotal vattotal dibstotal",
    "Claim1 P8":
        "loir1 loenh1 lototal1 loir2 loenh2 lototal2 liir1 lienh1 litotal1 liir2 lienh2 litotal2 "
        "tcir1 tcenh1 tctotal1 tcir2 tcenh2 tctotal2 cmtotal npc nex ndibs ntotal vpc vex vdibs "
        "vtotal grandtotal ncf vcf cftotal cslamt1 cslamt2 cslamt3 cslamt4 cslamt5 cslamt6",
    "Claim1 P9":
        "precertcosts duringcertlsc duringcertmr lhipccamount interest rcvrdtodate detmamount "
        "value dmrcvrdtodate",
    "Claim1 P10": "debtorsincome",

    "Claim1A P1": "totalcostsincurred",
    "Claim1A P3": "caspc caspcv",
    "Claim1A P4":
        "plpc plpcv fixedfee fixedfeevat nex vex dibs dibsvat total totalvat adv advvat csl cslvat",
    "Claim1A P5": "ctotal",
    "Claim1A P6": "exnet exvat extot",
    "Claim1A P7": "dibsnet dibsvat dibstotal",
    "Claim1A P8": "actot acvat",
    "Claim1A P10": "actl dtl htl ttl wtl total",
    "Claim1A P11":
        "loir1 loenh1 lototal1 loir2 loenh2 lototal2 liir1 lienh1 litotal1 liir2 lienh2 litotal2 "
        "tcir1 tcenh1 tctotal1 tcir2 tcenh2 tctotal2 cmtotal npc nex ndibs nsubtotal nfas ncsl "
        "ntotal vpc vex vdibs vsubtotal vfas vcsl vtotal",
    "Claim1A P12":
        "precertcosts duringcertlsc duringcertmr totalcosts lhipccamount interest rcvrdtodate "
        "detmamount",
    "Claim1A P13": "debtorsincome",
}
TOTALS = {
    "Claim1 P4": "ctotal",
    "Claim1 P5": "actm dtm htm ttm wtm actl dtl htl ttl wtl total",
    "Claim1 P6": "exnet exvat extot",
    "Claim1 P7": "nettotal vattotal dibstotal",
    "Claim1 P8": "cmtotal ntotal vtotal grandtotal",

    "Claim1A P4": "total totalvat",
    "Claim1A P5": "ctotal",
    "Claim1A P6": "exnet exvat extot",
    "Claim1A P7": "dibsnet dibsvat dibstotal",
    "Claim1A P8": "actot acvat",
    "Claim1A P10": "actm dtm htm ttm wtm actl dtl htl ttl wtl total",
    "Claim1A P11": "cmtotal nsubtotal vsubtotal ntotal vtotal",
}

# Rate, unit payment, bolt-on, bundle, settlement, travel, total and VAT.
ADVOCACY_MONEY = [5, 6, 8, 9, 10, 11, 12, 13]

# Lines above the first row, rows, cells per row, and the cells with money.
GRIDS = {
    "Claim1 P4": [(9, 32, 4, [3])],
    "Claim1 P4 Counsels Fees Cont": [(3, 38, 4, [3])],
    "Claim1 P5": [(5, 33, 13, [9, 10, 12])],
    "Claim1 P6": [(20, 11, 12, range(3, 12))],
    "Claim1 P6 Expert Dibs Cont": [(4, 32, 12, range(3, 12))],
    "Claim1 P7": [(6, 14, 5, []), (25, 12, 4, [1, 2, 3])],
    "Claim1 P7 Expert Dibs Joint Instruction Cont": [(5, 30, 5, [])],
    "Claim1 P7 Other Dibs Cont": [(3, 32, 4, [1, 2, 3])],

    "Claim1A P5": [(9, 32, 4, [3])],
    "Claim1A P5 Counsels Fees Cont": [(3, 38, 4, [3])],
    "Claim1A P6": [(22, 11, 12, range(3, 12))],
    "Claim1A P6 Expert Dibs Cont": [(5, 32, 12, range(3, 12))],
    "Claim1A P7": [(8, 14, 5, []), (27, 12, 4, [1, 2, 3])],
    "Claim1A P7 Expert Dibs Joint Instruction Cont": [(5, 30, 5, [])],
    "Claim1a P7 Other Dibs Cont": [(3, 32, 4, [1, 2, 3])],
    "Claim1A P8": [(7, 16, 14, ADVOCACY_MONEY), (27, 6, 2, []), (35, 10, 3, [])],
    "Claim1A P8 Advocacy Costs Cont": [(5, 36, 14, ADVOCACY_MONEY)],
    "Claim1A P8 Bolt on Payments Cont": [(5, 46, 2, [])],
    "Claim1A P8 Exceptional travel bolt-on Cont": [(4, 46, 3, [])],
    "Claim1A P10": [(5, 33, 13, [9, 10, 12])],
}
# Places for additional information: lines above, lines that fit.
PLACES = {
    "Claim1 P6": (3, 10),
    "Claim1 P6 Additional Info Cont": (3, 50),
    "Claim1A P11": (2, 25),
    "Claim1A P11 Additional Info Cont": (2, 50),
}

# The characters that the screens allow for each answer, and that the export puts on a continuation sheet.
FIRST_PAGE = {
    "typeofcase": 40, "stagenumber": 40, "casereferencenumber": 30, "title": 7, "firstname": 7,
    "surname": 17, "morethan1certificate": 130, "accountnumber": 7, "rollnumber": 7,
    "nameoffirm": 42, "casereference": 40, "contactnameforenquiries": 35,
    "telephoneforenquiries": 17, "emailforenquiries": 35,
}
COSTS_AWARDED = {"interestbreakdown": 60, "addressofservice": 75, "offerbydebtordetails": 85}
DEBTOR = {
    "title": 9, "initials": 9, "surnameororganisation": 25, "firstname": 25,
    "nationalinsurancenumber": 50, "address": 60, "phonework": 27, "phonehome": 27, "mobile": 30,
    "fax": 30, "email": 55, "solicitorsfirmname": 51, "job": 65, "employersname": 55,
    "employersaddress": 55, "assets": 330, "casereference": 45, "information": 820,
}
ALLOWANCES = {
    "Claim1 P1": {**FIRST_PAGE, "inclusiveofallsolicitorsreasons": 115},
    "Claim1 P2": {"nameofcourt": 30, "explanation": 400},
    "Claim1 P2 Late Submission Cont": {"explanation": 3000},
    "Claim1 P3": {"detailsofcase": 770, "detailsofenhancement": 710},
    "Claim1 P3 Case Details Cont": {"detailsofcase": 2750},
    "Claim1 P3 Enhancement Cont": {"detailsofenhancement": 2620},
    "Claim1 P6": {"expertsmeetmojstandardreasons": 100},
    "Claim1 P6 Expert Dibs Standards Cont": {"expertsmeetmojstandardreasons": 2750},
    "Claim1 P9": COSTS_AWARDED,
    "Claim1 P10": DEBTOR,

    "Claim1A P1": FIRST_PAGE,
    "Claim1A P3": {"detailsofcase": 570},
    "Claim1A P3 NoP Cont": {"detailsofcase": 2750},
    "Claim1A P4": {"workatalllevelsreasons": 100},
    "Claim1A P4 Reasons For Not Undertaking Work At All Levels Cont":
        {"workatalllevelsreasons": 2750},
    "Claim1A P6": {"expertsmeetmojstandardreasons": 250},
    "Claim1A P6 Expert Dibs Standards Cont": {"expertsmeetmojstandardreasons": 2750},
    "Claim1A P9": {"detailsofcase": 770},
    "Claim1A P9 Case Details Cont": {"detailsofcase": 2750},
    "Claim1A P12": COSTS_AWARDED,
    "Claim1A P13": DEBTOR,
}
# The same for the cells of a grid, identified by its number of cells; 4 only if three hold money.
CELL_ALLOWANCES = {
    2: {1: 35},                             # bolt-ons
    3: {2: 35},                             # exceptional travel
    4: {0: 35},                             # other disbursements
    5: {0: 12, 1: 20, 2: 20, 3: 20},        # joint instruction
}
# Columns narrower than other amounts, and what they must hold: hourly rates of experts and of the schedule, and the
# rate and the three fixed payments of a hearing, none of which comes near six figures.
RATE, PAYMENT = "9,999.99", "99,999.99"
NARROW = {12: {3: RATE, 5: RATE}, 13: {9: RATE}, 14: {5: PAYMENT, 9: PAYMENT, 10: PAYMENT, 11: PAYMENT}}
