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
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END mgpa4;

 ARCHITECTURE RTL OF mgpa4 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_w_lg_d3w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_w_lg_w_lg_d3w4w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop2 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_d3w(i) <= d(i) AND keep(i);
	END GENERATE loop2;
	loop3 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_w_lg_d3w4w(i) <= wire_st_w_lg_d3w(i) XOR en;
	END GENERATE loop3;
	keep <= "10";
	q <= wire_st_w_lg_w_lg_d3w4w;

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
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END mgqa4;

 ARCHITECTURE RTL OF mgqa4 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_w_lg_d1w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_w_lg_w_lg_d1w2w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_d1w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_w_lg_d1w2w(i) <= wire_st_w_lg_d1w(i) XOR en;
	END GENERATE loop1;
	keep <= "01";
	q <= wire_st_w_lg_w_lg_d1w2w;

 END RTL; --mgqa4
--VALID FILE
--==== top.vhd ====
--top LBX_SINGLE_OUTPUT_FILE="OFF" bit pair six
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 bit	:	IN  STD_LOGIC;
		 pair	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (5 DOWNTO 0);
		 six	:	IN  STD_LOGIC_VECTOR (5 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_d	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 SIGNAL  wire_st_q	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 COMPONENT  mgqa4
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  mgpa4
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_st_q;
	wire_st_d <= six;
	st_0 :  mgpa4
	  PORT MAP ( 
		d => wire_st_d(1 DOWNTO 0),
		en => bit,
		q => wire_st_q(1 DOWNTO 0)
	  );
	st_1 :  mgqa4
	  PORT MAP ( 
		d => wire_st_d(3 DOWNTO 2),
		en => bit,
		q => wire_st_q(3 DOWNTO 2)
	  );
	st_2 :  mgpa4
	  PORT MAP ( 
		d => wire_st_d(5 DOWNTO 4),
		en => bit,
		q => wire_st_q(5 DOWNTO 4)
	  );

 END RTL; --top
--VALID FILE
