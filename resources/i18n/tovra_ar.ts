<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AccountPage</name>
    <message>
        <source>Your account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect and sync available locations.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>أفغانستان</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>جزر آلاند</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>ألبانيا</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>الجزائر</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>صاموا الأمريكيّة</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>أندورا</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>أنغولا</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>أنغويلا</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>أنتيغوا و باربودا</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>الأرجنتين</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>أرمينيا</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>أروبا</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>أستراليا</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>النّمسا</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>أذربيجان</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>جزر البهاما</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>البحرين</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>بنغلادش</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>بربادوس</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>روسيا البيضاء</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>بلجيكا</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>بيليز</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>بنين</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>برمودا</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>بوتان</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>بوليفيا</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>البوسنة و الهرسك</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>بوتسوانا</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>البرازيل</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>بروناي دار السّلام</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>بلغاريا</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>بوركينا فاصو</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>بوروندي</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>كمبوديا</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>الكاميرون</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>كندا</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>الرأس الأخضر</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>جزر الكيمان</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>جمهورية إفريقيّا الوسطى</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>تشاد</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>تشيلي</translation>
    </message>
    <message>
        <source>China</source>
        <translation>الصّين</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>كولومبيا</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>جزر القمر</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>الكونغو</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>الكونغو، جمهوريّة الكونغو الدّيموقراطيّة</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>جزر كوك</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>كوستاريكا</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>ساحل العاج</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>كرواتيا</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>كوبا</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>قبرص</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>التشيك</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>الدّنمارك</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>جيبوتي</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>دومينيكا</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>جمهوريّة الدّومينيكان</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>الإكوادور</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>مصر</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>السّلفادور</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>غينيا الاستوائيّة</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>إريتريا</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>إستونيا</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>إثيوبيا</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>جزر فولكلاند (مالفيناس)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>جزر الفارو</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>فيجي</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>فنلندا</translation>
    </message>
    <message>
        <source>France</source>
        <translation>فرنسا</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>غيانا الفرنسيّة</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>بولينيسيا الفرنسيّة</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>الغابون</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>غامبيا</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>جورجيا</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>ألمانيا</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>غانا</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>جبل طارق</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>اليونان</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>غرينلاند</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>غرينادا</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>جوادالوبّي</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>جوام</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>غواتيمالا</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>جزيرة جويرزني</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>غينيا</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>غينيا بيساو</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>غويانا</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>هايتي</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>المقعد المقدّس (ولاية مدينة الفاتيكان)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>هندوراس</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>هونغ كونغ</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>المجر (هنغاريا)</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>آيسلندا</translation>
    </message>
    <message>
        <source>India</source>
        <translation>الهند</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>إندونيسيا</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>إيران، الجمهوريّة الإسلاميّة الإيرانيّة</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>العراق</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>أيرلندا</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>آيزل أف مان</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>إسرائيل</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>إيطاليا</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>جامايكا</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>اليابان</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>جيرسي</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>الأردن</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>كازاخستان</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>كينيا</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>كيريباتي</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>كوريا، جمهورية كوريا الشّعبيّة الدّيموقراطيّة</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>كوريا، جمهوريّة كوريا</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>الكويت</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>قيرغزستان</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>جمهوريّة لاو الدّيموقراطيّة الشّعبيّة</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>لاتفيا</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>لبنان</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>ليسوتو</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>ليبيريا</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>ليبيا</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>ليشتنشتاين</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>لثوانيا</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>لوكسمبورغ</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>مكّاو</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>مقدونيا الشمالية</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>مدغشقر</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>ملاوي</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>ماليزيا</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>جزر المالديف</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>مالي</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>مالطة</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>جزر المارشال</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>مارتينيك</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>موريتانيا</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>موريشيوس</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>مايوت</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>المكسيك</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>ميكرونيزيا، ولايات ميكرونيزيا الموحّدة</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>المالديف</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>موناكو</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>منغوليا</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>المنتنيغرو</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>مونتسيرات</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>المغرب</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>موزمبيق</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>ميانمار</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>ناميبيا</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>ناورو</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>نيبال</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>هولندا</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>نيو قلدونيا</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>نيوزيلاندا</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>نيكاراجوا</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>النّيجر</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>نيجيريا</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>نيوي</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>جزيرة نورفولك</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>جزر ماريانا الشّماليّة</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>النّرويج</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>عمان</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>باكستان</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>بالاو</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>دولة فلسطين</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>بنما</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>بابوا غينيا الجديدة</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>الباراغواي</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>البيرو</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>الفلبّين</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>بولندا</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>البرتغال</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>بورتوريكو</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>قطر</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>ريونيون</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>رومانيا</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>الاتّحاد الرّوسي</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>رواندا</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>ساينت هيلينا، تريستان دا كونا</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>سانت كيتس و نيفس</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>سانت لوسيا</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>سانت بيير و ميكيلون</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>سانت فنسنت و جزر الغرينادين</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>صاموا</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>سان مارينو</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>ساو تومي و برنسبي</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>السّعوديّة</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>السّنغال</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>صربية</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>السّيشل</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>سيراليون</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>سنغافورة</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>سلوفاكيا</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>سلوفينيا</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>جزر سولومن</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>الصّومال</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>جنوب إفريقيا</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>جنوب السّودان</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>إسبانيا</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>سريلانكا</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>السّودان</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>سورينام</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>إسواتيني</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>السّويد</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>سويسرا</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>الجمهوريّة العربيّة السّوريّة</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>تايوان</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>طاجيكستان</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>تنزانيا</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>تايلاند</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>تيمور-ليستي</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>توغو</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>جزر توكيلو</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>تونغا</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>ترينيداد و توباغو</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>تونس</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Türkiye</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>تركمانستان</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>جزر التّرك و الكايكوس</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>توفالو</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>أوغندا</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>أوكرانيا</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>الإمارات العربيّة المتحدّة</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>المملكة المتّحدة</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>الولايات المتّحدة</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>الأوروغواي</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>أوزبكستان</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>فانواتو</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>فنزويلّا</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>الفيتنام</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>فيرجن، جزر فيرجن البريطانيّة</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>فيرجن، جزر فيرجن الأميركيّة</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>واليس و فوتونا</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>الصّحراء الغربيّة</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>اليمن</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>زامبيا</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>زمبابوي</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every location of the service appears here, with your favourites.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VPN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying the mode...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VPN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill switch, DNS, proxies, language, appearance and updates appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Custom split rules unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your connection status and quick connect appear here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
