-- What the suite keeps for all clients: due dates by year, and the banks with their BSR codes.

INSERT INTO AYRetDate (AY, AuditRetDueDate)
SELECT '2014', '2014-09-30' WHERE NOT EXISTS (SELECT 1 FROM AYRetDate WHERE AY = '2014');

INSERT INTO AICustomisedItems (ItemGroup, Item, OtherInfo1, SrNo)
SELECT 'Bank', column1, column2, column3
FROM (VALUES ('State Bank of India', '0002345', 1),
             ('Bank of Baroda', '0210876', 2),
             ('Canara Bank', '0240113', 3),
             ('Punjab National Bank', '0304418', 4),
             ('Union Bank of India', '0290552', 5),
             ('Central Bank of India', '0280034', 6),
             ('Indian Overseas Bank', '0270615', 7),
             ('Bank of Maharashtra', '0230009', 8))
WHERE NOT EXISTS (SELECT 1 FROM AICustomisedItems WHERE ItemGroup = 'Bank');
