--==== mgpa4.vhd ====
--stage HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mgpa4 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END mgpa4;

 ARCHITECTURE RTL OF mgpa4 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s1_w_lg_d1w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s1_w_lg_w_lg_d1w2w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_d1w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_w_lg_d1w2w(i) <= wire_s1_w_lg_d1w(i) XOR en;
	END GENERATE loop1;
	keep <= "1110";
	q <= wire_s1_w_lg_w_lg_d1w2w;

 END RTL; --mgpa4
--VALID FILE
--==== mgqa4.vhd ====
--stage HELD=2 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mgqa4 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END mgqa4;

 ARCHITECTURE RTL OF mgqa4 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s1_w_lg_d5w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s1_w_lg_w_lg_d5w6w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop4 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_d5w(i) <= d(i) AND keep(i);
	END GENERATE loop4;
	loop5 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_w_lg_d5w6w(i) <= wire_s1_w_lg_d5w(i) XOR en;
	END GENERATE loop5;
	keep <= "1101";
	q <= wire_s1_w_lg_w_lg_d5w6w;

 END RTL; --mgqa4
--VALID FILE
--==== mgra4.vhd ====
--stage HELD=3 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mgra4 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END mgra4;

 ARCHITECTURE RTL OF mgra4 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s2_w_lg_d7w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_w_lg_w_lg_d7w8w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop6 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_d7w(i) <= d(i) AND keep(i);
	END GENERATE loop6;
	loop7 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_w_lg_d7w8w(i) <= wire_s2_w_lg_d7w(i) XOR en;
	END GENERATE loop7;
	keep <= "1100";
	q <= wire_s2_w_lg_w_lg_d7w8w;

 END RTL; --mgra4
--VALID FILE
--==== mguv3.vhd ====
--pair HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mguv3 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END mguv3;

 ARCHITECTURE RTL OF mguv3 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_vcc	:	STD_LOGIC;
	 SIGNAL  wire_s1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  mgpa4
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  mgqa4
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	wire_vcc <= '1';
	q <= wire_s2_q;
	s1 :  mgpa4
	  PORT MAP ( 
		d => d,
		en => wire_vcc,
		q => wire_s1_q
	  );
	s2 :  mgqa4
	  PORT MAP ( 
		d => wire_s1_q,
		en => wire_vcc,
		q => wire_s2_q
	  );

 END RTL; --mguv3
--VALID FILE
--==== mgvv3.vhd ====
--pair HELD=2 LBX_SINGLE_OUTPUT_FILE="OFF" d q
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  mgvv3 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END mgvv3;

 ARCHITECTURE RTL OF mgvv3 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_vcc	:	STD_LOGIC;
	 SIGNAL  wire_s1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  mgqa4
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  mgra4
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	wire_vcc <= '1';
	q <= wire_s2_q;
	s1 :  mgqa4
	  PORT MAP ( 
		d => d,
		en => wire_vcc,
		q => wire_s1_q
	  );
	s2 :  mgra4
	  PORT MAP ( 
		d => wire_s1_q,
		en => wire_vcc,
		q => wire_s2_q
	  );

 END RTL; --mgvv3
--VALID FILE
--==== top.vhd ====
--top LBX_SINGLE_OUTPUT_FILE="OFF" d
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_p1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_p2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  mguv3
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  mgvv3
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_p2_q;
	p1 :  mguv3
	  PORT MAP ( 
		d => d,
		q => wire_p1_q
	  );
	p2 :  mgvv3
	  PORT MAP ( 
		d => wire_p1_q,
		q => wire_p2_q
	  );

 END RTL; --top
--VALID FILE
